#pragma once

#include <QQuickItem>

namespace velm
{

// The shadow of the body that this item covers, drawn below and beside it (above there is the screen's edge).
// A nine-patch of device pixels: while the body changes its size nothing is blurred again.
class Shadow : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY radiusChanged)

public:
    explicit Shadow(QQuickItem *parent = nullptr);

    double radius() const { return m_radius; }
    void setRadius(double radius);

Q_SIGNALS:
    void radiusChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;

private:
    double m_radius = 0;
};

}
