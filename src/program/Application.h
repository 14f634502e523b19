#pragma once

#include "app/Feedback.h"
#include "app/PreferencesFile.h"
#include "app/Settings.h"
#include "app/Store.h"
#include "app/UndoOffer.h"
#include "clipboard/ClipboardManager.h"
#include "island/IslandController.h"
#include "panels/ThisComputer.h"
#include "panels/WallClock.h"
#include "platform/Platform.h"
#include "program/NotchWindow.h"

#include <QObject>

#include <memory>

namespace velm
{

class CommandService;
class StatusItem;

// The object graph: its members, top to bottom, are born in this order and die in the reverse one. Every
// start mode builds it; only start() makes it the resident program.
class Application : public QObject
{
    Q_OBJECT

public:
    // Where state is kept, so that a mode for trying never touches the person's own.
    struct Places {
        QString dataFolderName; // in the person's data folder
        QString preferencesPath;
    };

    Application(RunLoop &loop, Platform platform, const Places &places);
    ~Application() override;

    // The resident program's start: window, watchers, status item, commands, greeting.
    void start();

    // Ends the program in the ordinary way, with everything written.
    void quit();

    // The same once the present task is over, so that a command can still be answered.
    void quitSoon();

    // Whether another instance had taken the bus name between our look and our start.
    bool isSecond() const { return m_isSecond; }

    IslandController &island() { return m_island; }
    ClipboardManager &clipboard() { return m_clipboard; }
    PreferencesFile &preferences() { return m_preferences; }
    Settings &settings() { return m_settings; }
    RunLoop &loop() { return m_loop; }
    Store &store() { return m_store; }

private:
    void flush();
    void greet();

    RunLoop &m_loop;
    Platform m_platform;
    PreferencesFile m_preferences;
    Settings m_settings;
    Feedback m_feedback;
    Store m_store;
    UndoOffer m_undo;
    IslandController m_island;
    ClipboardManager m_clipboard;
    WallClock m_clock;
    ThisComputer m_computer;
    std::unique_ptr<NotchWindow> m_window;
    std::unique_ptr<StatusItem> m_statusItem;
    std::unique_ptr<CommandService> m_commands;
    LoopTimer m_greeting;
    bool m_isSecond = false;
};

}
