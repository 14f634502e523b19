#include "platform/Platform.h"

#include "platform/drag/NullDragPasteboard.h"
#include "platform/files/NullFileManager.h"
#include "platform/files/dbus/DBusFileManager.h"
#include "platform/front/NullFrontProgram.h"
#include "platform/front/x11/X11FrontProgram.h"
#include "platform/haptics/NullHaptics.h"
#include "platform/login/NullLoginItem.h"
#include "platform/login/xdg/XdgLoginItem.h"
#include "platform/notifications/NullNotifications.h"
#include "platform/notifications/dbus/DBusNotifications.h"
#include "platform/overlay/PlainOverlay.h"
#include "platform/overlay/x11/X11Overlay.h"
#include "platform/pasteboard/OwnPasteboard.h"
#include "platform/pasteboard/x11/X11Pasteboard.h"
#include "platform/pointer/NullPointer.h"
#include "platform/pointer/x11/X11Pointer.h"
#include "platform/screens/qt/QtScreens.h"
#include "platform/sound/NullSoundPlayer.h"
#include "platform/sound/canberra/CanberraSound.h"
#include "platform/typing/NullPasteKeys.h"
#include "platform/typing/x11/X11PasteKeys.h"
#include "platform/x11/X11Connection.h"

#include <QGuiApplication>

namespace velm
{

namespace
{

// What every display system shares.
void addCommonServices(Platform &platform, RunLoop &loop)
{
    platform.screens = std::make_unique<QtScreens>();
    platform.drag = std::make_unique<NullDragPasteboard>();
    platform.sound = std::make_unique<CanberraSound>(loop);
    platform.haptics = std::make_unique<NullHaptics>();
    platform.notifications = std::make_unique<DBusNotifications>();
    platform.loginItem = std::make_unique<XdgLoginItem>();
    platform.fileManager = std::make_unique<DBusFileManager>();
}

void addX11Services(Platform &platform, RunLoop &loop, std::unique_ptr<X11Connection> connection)
{
    platform.name = QStringLiteral("x11");
    platform.overlay = std::make_unique<X11Overlay>(*connection, loop);
    platform.pointer = std::make_unique<X11Pointer>(*connection, loop);
    platform.pasteboard = std::make_unique<X11Pasteboard>(*connection, loop);
    platform.front = std::make_unique<X11FrontProgram>(*connection);
    platform.pasteKeys = std::make_unique<X11PasteKeys>(*connection);
    platform.display = std::move(connection);
}

void addStandIns(Platform &platform)
{
    platform.name = QGuiApplication::platformName();
    platform.overlay = std::make_unique<PlainOverlay>();
    platform.pointer = std::make_unique<NullPointer>();
    platform.pasteboard = std::make_unique<OwnPasteboard>();
    platform.front = std::make_unique<NullFrontProgram>();
    platform.pasteKeys = std::make_unique<NullPasteKeys>();
}

}

Platform makePlatform(RunLoop &loop)
{
    Platform platform;
    addCommonServices(platform, loop);
    std::unique_ptr<X11Connection> connection;
    if (QGuiApplication::platformName() == QStringLiteral("xcb"))
        connection = X11Connection::open();
    if (connection)
        addX11Services(platform, loop, std::move(connection));
    else
        addStandIns(platform);
    return platform;
}

Platform makeTrialPlatform()
{
    Platform platform;
    platform.screens = std::make_unique<QtScreens>();
    platform.drag = std::make_unique<NullDragPasteboard>();
    platform.sound = std::make_unique<NullSoundPlayer>();
    platform.haptics = std::make_unique<NullHaptics>();
    platform.notifications = std::make_unique<NullNotifications>();
    platform.loginItem = std::make_unique<NullLoginItem>();
    platform.fileManager = std::make_unique<NullFileManager>();
    addStandIns(platform);
    return platform;
}

}
