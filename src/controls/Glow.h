#pragma once

#include <QColor>
#include <QQuickItem>

namespace velm
{

// A soft light behind the island; the black body in front of it hides the inner half.
class Glow : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor tint READ tint WRITE setTint NOTIFY tintChanged)

public:
    explicit Glow(QQuickItem *parent = nullptr);

    QColor tint() const { return m_tint; }
    void setTint(const QColor &tint);

Q_SIGNALS:
    void tintChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    void repaint();

    QColor m_tint;
    bool m_isPainted = false;
};

}
