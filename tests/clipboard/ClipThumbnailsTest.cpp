#include "clipboard/ClipThumbnails.h"
#include "clipboard/ClipMaking.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QQuickTextureFactory>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace velm;

class ClipThumbnailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void a_thumbnail_is_the_rounded_middle();
    void what_is_no_thumbnail_is_an_error_data();
    void what_is_no_thumbnail_is_an_error();
    void the_address_leads_to_the_provider();

private:
    QImage thumbnail(const QString &id, QString *error = nullptr);

    QTemporaryDir m_data;
    ClipFolder m_folder{QDir(m_data.path())};
    VirtualRunLoop m_loop;
    ClipThumbnails m_thumbnails{m_loop, m_folder};
};

QImage ClipThumbnailsTest::thumbnail(const QString &id, QString *error)
{
    const std::unique_ptr<QQuickImageResponse> response(m_thumbnails.requestImageResponse(id, {}));
    QSignalSpy finished(response.get(), &QQuickImageResponse::finished);
    m_loop.settle();
    if (finished.size() != 1)
        return {};
    if (error)
        *error = response->errorString();
    const std::unique_ptr<QQuickTextureFactory> factory(response->textureFactory());
    return factory ? factory->image() : QImage();
}

void ClipThumbnailsTest::a_thumbnail_is_the_rounded_middle()
{
    QImage wide = plainImage({300, 100}, Qt::red);
    wide.fill(Qt::red);
    for (int x = 100; x < 200; ++x) {
        for (int y = 0; y < 100; ++y)
            wide.setPixelColor(x, y, Qt::blue);
    }
    QVERIFY(m_folder.write("A.png", encoded(wide)));

    const QImage image = thumbnail("A.png/8/56");

    QCOMPARE(image.size(), QSize(56, 56));
    QCOMPARE(image.pixelColor(28, 28), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(2, 28), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(53, 28), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(thumbnail("A.png/8/56"), image);
}

void ClipThumbnailsTest::what_is_no_thumbnail_is_an_error_data()
{
    QTest::addColumn<QString>("id");
    for (const char *id : {"", "B.png", "B.png/8/56", "A.png/8", "A.png/8/0", "A.png/8/x", "A.png/-1/56",
                           "A.png/8/99999", "../A.png/8/56"})
        QTest::newRow(id) << id;
}

void ClipThumbnailsTest::what_is_no_thumbnail_is_an_error()
{
    QFETCH(QString, id);
    QString error;

    QVERIFY(thumbnail(id, &error).isNull());

    QCOMPARE(error, "no such clip");
}

void ClipThumbnailsTest::the_address_leads_to_the_provider()
{
    QCOMPARE(ClipThumbnails::address("A.png").toString(), "image://clip/A.png");
}

QTEST_MAIN(ClipThumbnailsTest)
#include "ClipThumbnailsTest.moc"
