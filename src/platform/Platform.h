#pragma once

#include "platform/drag/DragPasteboard.h"
#include "platform/files/FileManager.h"
#include "platform/front/FrontProgram.h"
#include "platform/haptics/Haptics.h"
#include "platform/login/LoginItem.h"
#include "platform/notifications/Notifications.h"
#include "platform/overlay/Overlay.h"
#include "platform/pasteboard/Pasteboard.h"
#include "platform/pointer/Pointer.h"
#include "platform/screens/Screens.h"
#include "platform/sound/SoundPlayer.h"
#include "platform/typing/PasteKeys.h"

#include <memory>

namespace velm
{

class RunLoop;

// Every platform service, each by the back-end that was found to work; none is null.
struct Platform {
    QString name;                     // "x11", "offscreen": the display system in use, for people
    std::unique_ptr<QObject> display; // what the services below share; it goes after them
    std::unique_ptr<Screens> screens;
    std::unique_ptr<Overlay> overlay;
    std::unique_ptr<Pointer> pointer;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<DragPasteboard> drag;
    std::unique_ptr<FrontProgram> front;
    std::unique_ptr<PasteKeys> pasteKeys;
    std::unique_ptr<SoundPlayer> sound;
    std::unique_ptr<Haptics> haptics;
    std::unique_ptr<Notifications> notifications;
    std::unique_ptr<LoginItem> loginItem;
    std::unique_ptr<FileManager> fileManager;
};

// Tries the back-ends of each service in order and takes the first that works here. Needs the application
// object, whose Qt platform names the display system.
Platform makePlatform(RunLoop &loop);

// For trying the program out: nothing is heard, sent or set up, and no display is asked for.
Platform makeTrialPlatform();

}
