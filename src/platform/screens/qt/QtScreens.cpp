#include "platform/screens/qt/QtScreens.h"

#include <QGuiApplication>
#include <QScreen>

namespace velm
{

QtScreens::QtScreens()
{
    for (QScreen *screen : QGuiApplication::screens())
        follow(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        follow(screen);
        lookSoon();
    });
    connect(qApp, &QGuiApplication::screenRemoved, this, &QtScreens::lookSoon);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, &QtScreens::lookSoon);
    m_told = all();
}

QList<ScreenInfo> QtScreens::all() const
{
    QList<ScreenInfo> screens;
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QRect geometry = screen->geometry();
        if (geometry.isEmpty())
            continue; // the toolkit's stand-in while there is no screen
        screens.append({.connector = screen->name(),
                        .geometry = geometry,
                        .topInset = screen->availableGeometry().top() - geometry.top(),
                        .isPrimary = screen == QGuiApplication::primaryScreen(),
                        .housing = {}});
    }
    return screens;
}

void QtScreens::follow(QScreen *screen)
{
    connect(screen, &QScreen::geometryChanged, this, &QtScreens::lookSoon);
    connect(screen, &QScreen::availableGeometryChanged, this, &QtScreens::lookSoon);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, &QtScreens::lookSoon);
    connect(screen, &QScreen::orientationChanged, this, &QtScreens::lookSoon);
}

void QtScreens::lookSoon()
{
    if (m_willLook)
        return;
    m_willLook = true;
    QMetaObject::invokeMethod(this, &QtScreens::look, Qt::QueuedConnection);
}

void QtScreens::look()
{
    m_willLook = false;
    QList<ScreenInfo> now = all();
    if (now == m_told)
        return;
    m_told = std::move(now);
    Q_EMIT changed();
}

}
