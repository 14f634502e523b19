#include "program/Application.h"

#include "program/CommandService.h"
#include "program/Commands.h"
#include "program/QmlModules.h"
#include "program/StatusItem.h"

#include <QGuiApplication>

namespace velm
{

namespace
{

constexpr std::chrono::milliseconds greetingDelay{600}; // the desktop has drawn itself by then
constexpr Seconds greetingDuration{3.4};

}

Application::Application(RunLoop &loop, Platform platform, const Places &places)
    : m_loop(loop)
    , m_platform(std::move(platform))
    , m_preferences(loop, places.preferencesPath)
    , m_settings(m_preferences, *m_platform.loginItem)
    , m_feedback(m_settings, *m_platform.sound, *m_platform.haptics, *m_platform.notifications)
    , m_store(loop, places.dataFolderName)
    , m_undo(loop)
    , m_island(loop, m_settings, m_feedback, *m_platform.screens, *m_platform.overlay, *m_platform.pointer)
    , m_clipboard(loop, m_store, m_settings, m_feedback, m_island, *m_platform.pasteboard, *m_platform.front,
                  *m_platform.pasteKeys, m_undo)
    , m_clock(loop)
    , m_computer(*m_platform.pasteKeys, *m_platform.haptics, *m_platform.fileManager, m_store.dir().path())
    , m_greeting(loop)
{}

Application::~Application() = default;

void Application::start()
{
    m_commands = std::make_unique<CommandService>(commandTable(this));
    m_isSecond = !m_commands->take();
    if (m_isSecond)
        return;

    m_window = std::make_unique<NotchWindow>(*m_platform.overlay);
    prepareEngine(*m_window->engine(), *this);
    m_window->load();
    m_island.start();
    m_clipboard.start();
    m_feedback.requestNotificationAuth();
    m_statusItem = std::make_unique<StatusItem>(m_island, m_clipboard, [this] { quit(); });
    m_greeting.startOnce(greetingDelay, [this] { greet(); });

    connect(qGuiApp, &QGuiApplication::aboutToQuit, this, &Application::flush);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Application::flush);
}

void Application::greet()
{
    m_island.present({.id = QStringLiteral("greeting"),
                      .icon = QStringLiteral("sparkles"),
                      .leading = tr("Velm is ready"),
                      .duration = greetingDuration});
}

void Application::quit()
{
    flush();
    QCoreApplication::quit();
}

void Application::quitSoon()
{
    m_loop.post([this] { quit(); });
}

void Application::flush()
{
    m_undo.dismiss();
    m_store.flushNow();
    m_preferences.flushNow();
}

}
