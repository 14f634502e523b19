#include "program/NotchWindow.h"

#include "island/IslandGeometry.h"
#include "platform/overlay/Overlay.h"

namespace velm
{

NotchWindow::NotchWindow(Overlay &overlay) : m_overlay(overlay)
{
    setTitle(QStringLiteral("Velm"));
    setColor(Qt::transparent);
    setResizeMode(QQuickView::SizeRootObjectToView);
    resize(IslandGeometry::windowSize.toSize());
    m_overlay.attach(this);
}

NotchWindow::~NotchWindow() { m_overlay.attach(nullptr); }

void NotchWindow::load()
{
    setSource(QUrl(QStringLiteral("qrc:/qml/Velm/Panels/Main.qml")));
    if (!errors().isEmpty())
        qFatal("[Velm] the panel's QML does not load: %s", qPrintable(errors().constFirst().toString()));
}

}
