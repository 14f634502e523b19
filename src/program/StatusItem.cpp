#include "program/StatusItem.h"

#include "clipboard/ClipboardManager.h"
#include "island/IslandController.h"
#include "program/MenuBarIcon.h"
#include "theme/Symbols.h"

#include <QDBusConnection>

namespace velm
{

StatusItem::StatusItem(IslandController &island, ClipboardManager &clipboard, std::function<void()> quit)
    : m_island(island)
    , m_clipboard(clipboard)
    , m_trayWatcher(QStringLiteral("org.kde.StatusNotifierWatcher"), QDBusConnection::sessionBus(),
                    QDBusServiceWatcher::WatchForRegistration)
{
    buildMenu(std::move(quit));
    showIcon();
    // Qt chooses between the bus and the older tray once, when the icon is made: a tray that comes later
    // needs a new one.
    connect(&m_trayWatcher, &QDBusServiceWatcher::serviceRegistered, this, &StatusItem::showIcon);
    connect(&m_clipboard, &ClipboardManager::isPausedChanged, this, &StatusItem::retitlePause);
}

void StatusItem::buildMenu(std::function<void()> quit)
{
    const QColor ink = m_menu.palette().color(QPalette::WindowText);
    m_menu.addAction(tr("Open Velm"), this, [this] { m_island.open(); });
    m_menu.addSeparator();
    for (const VelmTab tab : allTabs())
        m_menu.addAction(symbolIcon(icon(tab), ink), title(tab), this, [this, tab] { openTab(tab); });
    m_menu.addSeparator();
    m_menu.addAction(tr("Settings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma), this, [this] {
        m_island.openSettings(m_island.settingsPage(), IslandController::Focus::Take);
    });
    m_pauseAction = m_menu.addAction(QString(), this, &StatusItem::togglePause);
    m_menu.addAction(tr("Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, std::move(quit));
    retitlePause();
}

void StatusItem::openTab(VelmTab tab)
{
    m_island.closeSettings(); // who asks for a section wants to see it
    m_island.open(tab, IslandController::Focus::Take);
}

void StatusItem::showIcon()
{
    m_icon = std::make_unique<QSystemTrayIcon>(menuBarIcon());
    m_icon->setToolTip(QStringLiteral("Velm"));
    m_icon->setContextMenu(&m_menu);
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger)
                    m_island.open();
            });
    m_icon->show();
}

void StatusItem::togglePause() { m_clipboard.togglePause(); }

void StatusItem::retitlePause()
{
    m_pauseAction->setText(m_clipboard.isPaused() ? tr("Resume clipboard capture")
                                                  : tr("Pause clipboard capture"));
}

}
