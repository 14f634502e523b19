#include "clipboard/ClipThumbnails.h"

#include <QCache>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace velm
{

namespace
{

constexpr int mostCachedBytes = 2 * 1024 * 1024; // some hundred rows at double scale
constexpr int mostWidth = 1024;                  // no row is wider

struct Request {
    QString name;
    int radius = 0;
    int width = 0;
};

std::optional<Request> parse(const QString &id)
{
    const QStringList parts = id.split(u'/');
    if (parts.size() != 3)
        return {};
    const Request request{parts[0], parts[1].toInt(), parts[2].toInt()};
    const bool isReasonable = request.radius >= 0 && request.width > 0 && request.width <= mostWidth;
    return isReasonable ? std::optional(request) : std::nullopt;
}

QImage middleSquare(const QImage &image, int width)
{
    const QImage filled =
        image.scaled(width, width, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    return filled.copy((filled.width() - width) / 2, (filled.height() - width) / 2, width, width);
}

QImage rounded(const QImage &square, int radius)
{
    QImage result(square.size(), QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(square.rect()), radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(square);
    painter.drawPath(outline);
    return result;
}

QImage makeThumbnail(const Request &request, const ClipFolder &folder)
{
    const QImage image = QImage::fromData(folder.read(request.name));
    return image.isNull() ? image : rounded(middleSquare(image, request.width), request.radius);
}

// Told from the queue; the engine deletes it afterwards.
class Response final : public QQuickImageResponse
{
public:
    void answer(const QImage &image)
    {
        m_image = image;
        Q_EMIT finished();
    }

    QQuickTextureFactory *textureFactory() const override
    {
        return QQuickTextureFactory::textureFactoryForImage(m_image);
    }

    QString errorString() const override
    {
        return m_image.isNull() ? QStringLiteral("no such clip") : QString();
    }

private:
    QImage m_image;
};

}

class ClipThumbnails::Cache
{
public:
    QImage get(const QString &id, const ClipFolder &folder)
    {
        if (const QImage *known = m_images.object(id))
            return *known;
        const auto request = parse(id);
        const QImage image = request ? makeThumbnail(*request, folder) : QImage();
        if (!image.isNull())
            m_images.insert(id, new QImage(image), image.sizeInBytes());
        return image;
    }

private:
    QCache<QString, QImage> m_images{mostCachedBytes};
};

QUrl ClipThumbnails::address(const QString &name)
{
    return QUrl(QStringLiteral("image://%1/%2").arg(QString::fromLatin1(providerName), name));
}

ClipThumbnails::ClipThumbnails(RunLoop &loop, ClipFolder folder)
    : m_folder(std::move(folder))
    , m_cache(std::make_shared<Cache>())
    , m_queue(loop.makeQueue("app.velm.thumbs"))
{}

ClipThumbnails::~ClipThumbnails() = default;

QQuickImageResponse *ClipThumbnails::requestImageResponse(const QString &id, const QSize &)
{
    auto *response = new Response;
    m_queue->enqueue(
        [response, id, cache = m_cache, folder = m_folder] { response->answer(cache->get(id, folder)); });
    return response;
}

}
