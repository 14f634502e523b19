#include "controls/Shadow.h"

#include "controls/SoftPictures.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <array>
#include <memory>

namespace velm
{

namespace
{
// The five pieces that show: both sides, both lower corners, the lower edge.
class Patches : public QSGNode
{
public:
    enum Piece { Left, Right, LeftCorner, RightCorner, Lower, PieceCount };

    void adopt(QQuickWindow &window, const SoftShadow &shadow)
    {
        m_texture.reset(window.createTextureFromImage(shadow.picture));
        m_key = shadow.picture.cacheKey();
        for (QSGImageNode *&piece : m_pieces) {
            if (!piece) {
                piece = window.createImageNode();
                piece->setFlag(OwnedByParent);
                appendChildNode(piece);
            }
            piece->setTexture(m_texture.get());
        }
    }

    bool shows(const SoftShadow &shadow) const { return m_key == shadow.picture.cacheKey(); }

    void place(Piece piece, const QRectF &target, const QRectF &source)
    {
        m_pieces[piece]->setRect(target);
        m_pieces[piece]->setSourceRect(source);
    }

private:
    std::unique_ptr<QSGTexture> m_texture;
    qint64 m_key = 0;
    std::array<QSGImageNode *, PieceCount> m_pieces{};
};

// `body` in points, the picture in device pixels.
void layOut(Patches &patches, const QSizeF &body, const SoftShadow &shadow, double scale)
{
    const double side = shadow.picture.width();
    const double core = shadow.core;
    const double reach = shadow.reach / scale;
    const double corner = core / scale;
    const double far = side - core;
    const double right = body.width() + reach - corner;
    const double bottom = body.height() + reach - corner;
    const double middle = right - (corner - reach);
    patches.place(Patches::Left, {-reach, 0, corner, bottom}, {0, core, core, 1});
    patches.place(Patches::Right, {right, 0, corner, bottom}, {far, core, core, 1});
    patches.place(Patches::LeftCorner, {-reach, bottom, corner, corner}, {0, far, core, core});
    patches.place(Patches::RightCorner, {right, bottom, corner, corner}, {far, far, core, core});
    patches.place(Patches::Lower, {corner - reach, bottom, middle, corner}, {core, far, 1, core});
}
}

Shadow::Shadow(QQuickItem *parent) : QQuickItem(parent) { setFlag(ItemHasContents); }

void Shadow::setRadius(double radius)
{
    if (radius == m_radius)
        return;
    m_radius = radius;
    Q_EMIT radiusChanged();
    update();
}

QSGNode *Shadow::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    const double scale = window()->effectiveDevicePixelRatio();
    const SoftShadow shadow = softShadow(m_radius, scale);
    auto *patches = static_cast<Patches *>(old);
    if (!patches)
        patches = new Patches;
    if (!patches->shows(shadow))
        patches->adopt(*window(), shadow);
    layOut(*patches, size(), shadow, scale);
    return patches;
}

void Shadow::itemChange(ItemChange change, const ItemChangeData &value)
{
    if (change == ItemDevicePixelRatioHasChanged)
        update();
    QQuickItem::itemChange(change, value);
}

}
