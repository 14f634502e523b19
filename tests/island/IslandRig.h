#pragma once

#include "app/Feedback.h"
#include "app/PreferencesFile.h"
#include "app/Settings.h"
#include "island/IslandController.h"
#include "platform/fakes/FakeOverlay.h"
#include "platform/fakes/FakePointer.h"
#include "platform/fakes/FakeScreens.h"
#include "platform/fakes/RecordedHaptics.h"
#include "platform/fakes/RecordedLoginItem.h"
#include "platform/fakes/RecordedNotifications.h"
#include "platform/fakes/RecordedSound.h"
#include "platform/runloop/VirtualRunLoop.h"

#include <QTemporaryDir>

namespace velm
{

using namespace std::chrono_literals;

// All that an island needs, on a virtual clock: a laptop's screen of 1280 × 800 with a pill of 190 × 32,
// which spans x 545 to 735.
struct IslandSurroundings {
    QTemporaryDir folder;
    VirtualRunLoop loop;
    PreferencesFile preferences{loop, folder.filePath(QStringLiteral("settings.json"))};
    RecordedLoginItem loginItem;
    Settings settings{preferences, loginItem};
    RecordedSound sounds;
    RecordedHaptics haptics;
    RecordedNotifications notifications;
    Feedback feedback{settings, sounds, haptics, notifications};
    FakeScreens screens;
    FakeOverlay overlay;
    FakePointer pointer;
};

// The same with the island at work.
struct IslandRig : IslandSurroundings {
    IslandController island{loop, settings, feedback, screens, overlay, pointer};

    IslandRig()
    {
        pointer.moveTo(away);
        island.start();
        loop.settle();
    }

    void rest(RunLoop::Duration duration) { loop.advance(duration); }
    void enter() { pointer.moveTo(onNotch); }
    void leave() { pointer.moveTo(away); }

    static constexpr QPoint onNotch{640, 10};
    static constexpr QPoint away{640, 600};
    static constexpr QPoint inPanel{640, 200};
};

}

Q_DECLARE_METATYPE(velm::IslandMode)
