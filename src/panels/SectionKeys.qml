import QtQml
import Velm.Island

// The keys that work in every section.
QtObject {
    id: root

    readonly property var tabs: IslandController.visibleTabs

    function take(event: var): bool {
        if (IslandController.mode !== IslandMode.Expanded)
            return false
        if (event.key === Qt.Key_Escape)
            return IslandController.escape()
        return (event.modifiers & Qt.ControlModifier) !== 0 && root.takeWithControl(event)
    }

    function takeWithControl(event: var): bool {
        if (event.key >= Qt.Key_1 && event.key <= Qt.Key_9)
            root.go(event.key - Qt.Key_1)
        else if (event.key === Qt.Key_Tab)
            root.step(1)
        else if (event.key === Qt.Key_Backtab)
            root.step(-1)
        else if (event.key === Qt.Key_Comma)
            IslandController.openSettings(IslandController.settingsPage)
        else
            return false
        return true
    }

    function step(by: int) {
        const count = root.tabs.length
        if (count > 0)
            root.go((root.tabs.indexOf(IslandController.tab) + by + count) % count)
    }

    function go(index: int) {
        if (index >= root.tabs.length)
            return
        IslandController.closeSettings()
        IslandController.select(root.tabs[index])
    }
}
