#include "program/MenuBarIcon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace velm
{

namespace
{

// Drawn on a grid of 22, the size that panels ask for most.
QPixmap drawn(int size, const QColor &ink)
{
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / 22.0, size / 22.0);
    painter.setPen(QPen(ink, 1.6));
    painter.drawRoundedRect(QRectF(2.8, 4.8, 16.4, 12.4), 3, 3);
    QPainterPath island;
    island.moveTo(6.5, 4.8);
    island.lineTo(15.5, 4.8);
    island.lineTo(15.5, 7.4);
    island.quadTo(15.5, 9.6, 13.3, 9.6);
    island.lineTo(8.7, 9.6);
    island.quadTo(6.5, 9.6, 6.5, 7.4);
    island.closeSubpath();
    painter.fillPath(island, ink);
    return picture;
}

}

QIcon menuBarIcon()
{
    const QColor ink = QGuiApplication::palette().color(QPalette::WindowText);
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 44, 48, 64})
        icon.addPixmap(drawn(size, ink));
    icon.setIsMask(true);
    return icon;
}

}
