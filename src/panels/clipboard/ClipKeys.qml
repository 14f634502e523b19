import QtQuick
import Velm.Clipboard
import Velm.Controls

// What each key does in the clipboard panel.
QtObject {
    id: root

    required property ClipList list
    required property SearchField search
    readonly property bool isAtList: !search.isTyping && search.text === ""

    // All clips, nothing typed, the first row selected.
    function begin() {
        root.stopTyping()
        ClipboardManager.filter = ClipFilter.All
        root.list.toFirst()
        root.search.input.forceActiveFocus()
    }

    function stopTyping() {
        root.search.isTyping = false
        ClipboardManager.search = ""
    }

    function take(event: var) {
        event.accepted = root.moved(event) || root.acted(event) || root.searched(event)
    }

    function moved(event: var): bool {
        const inList = root.isAtList || (event.modifiers & Qt.ControlModifier)
        switch (event.key) {
        case Qt.Key_Up: root.list.step(-1); return true
        case Qt.Key_Down: root.list.step(1); return true
        case Qt.Key_PageUp: root.list.step(-root.list.page); return true
        case Qt.Key_PageDown: root.list.step(root.list.page); return true
        case Qt.Key_Home: if (inList) root.list.step(-root.list.count); return inList
        case Qt.Key_End: if (inList) root.list.step(root.list.count); return inList
        }
        return false
    }

    function acted(event: var): bool {
        const modifiers = event.modifiers & ~Qt.KeypadModifier
        const withControl = modifiers === Qt.ControlModifier
        const isPlain = root.isAtList && modifiers === Qt.NoModifier
        if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            return root.list.use(root.list.currentIndex, withControl)
        if (event.key === Qt.Key_P && (isPlain || withControl))
            return root.list.pinCurrent()
        if (event.key === Qt.Key_Delete && isPlain)
            return root.list.removeCurrent()
        if (isPlain && event.key >= Qt.Key_1 && event.key <= Qt.Key_9)
            return root.list.use(event.key - Qt.Key_1, false)
        return false
    }

    function searched(event: var): bool {
        if (event.key === Qt.Key_F && event.modifiers === Qt.ControlModifier) {
            root.search.isTyping = true
            root.search.input.forceActiveFocus()
            root.search.input.selectAll()
            return true
        }
        if (event.key === Qt.Key_Escape && !root.isAtList) {
            root.stopTyping()
            return true
        }
        return false
    }
}
