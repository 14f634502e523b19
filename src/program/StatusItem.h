#pragma once

#include "island/VelmTab.h"

#include <QDBusServiceWatcher>
#include <QMenu>
#include <QSystemTrayIcon>

#include <memory>

namespace velm
{

class ClipboardManager;
class IslandController;

// The icon among the desktop's status items and its menu. A tray that comes late is followed; without one
// there is no icon and nothing else changes.
class StatusItem : public QObject
{
    Q_OBJECT

public:
    StatusItem(IslandController &island, ClipboardManager &clipboard, std::function<void()> quit);

    QMenu &menu() { return m_menu; }

private:
    void buildMenu(std::function<void()> quit);
    void openTab(VelmTab tab);
    void showIcon();
    void togglePause();
    void retitlePause();

    IslandController &m_island;
    ClipboardManager &m_clipboard;
    QMenu m_menu;
    QAction *m_pauseAction = nullptr; // owned by the menu
    std::unique_ptr<QSystemTrayIcon> m_icon;
    QDBusServiceWatcher m_trayWatcher;
};

}
