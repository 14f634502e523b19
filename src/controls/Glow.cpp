#include "controls/Glow.h"

#include "controls/SoftPictures.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <memory>

namespace velm
{

namespace
{
class Light : public QSGNode
{
public:
    explicit Light(QQuickWindow &window) : m_image(window.createImageNode())
    {
        m_image->setFlag(OwnedByParent);
        appendChildNode(m_image);
    }

    void adopt(QQuickWindow &window, const QImage &picture)
    {
        std::unique_ptr<QSGTexture> texture(window.createTextureFromImage(picture));
        m_image->setTexture(texture.get());
        m_texture = std::move(texture);
    }

    void place(const QRectF &rect) { m_image->setRect(rect); }

private:
    QSGImageNode *m_image;
    std::unique_ptr<QSGTexture> m_texture;
};
}

Glow::Glow(QQuickItem *parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

void Glow::setTint(const QColor &tint)
{
    if (tint == m_tint)
        return;
    m_tint = tint;
    Q_EMIT tintChanged();
    repaint();
}

QSGNode *Glow::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    auto *light = static_cast<Light *>(old);
    if (!light) {
        light = new Light(*window());
        m_isPainted = false;
    }
    if (!m_isPainted) {
        const QSize pixels = (size() * window()->effectiveDevicePixelRatio()).toSize();
        light->adopt(*window(), softLight(m_tint, pixels.expandedTo({1, 1})));
        m_isPainted = true;
    }
    light->place(boundingRect());
    return light;
}

void Glow::geometryChange(const QRectF &now, const QRectF &before)
{
    if (now.size() != before.size())
        repaint();
    QQuickItem::geometryChange(now, before);
}

void Glow::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (change == ItemDevicePixelRatioHasChanged)
        repaint();
    QQuickItem::itemChange(change, value);
}

void Glow::repaint()
{
    m_isPainted = false;
    update();
}

}
