import QtQuick
import Velm.Clipboard
import Velm.Island
import Velm.Theme

// The clips that pass filter and search, pinned ones first. Nothing of it exists while it is not shown.
ListView {
    id: root

    property bool isShown: false
    property color accent: Ink.text
    readonly property int page: Math.max(1, Math.floor(height / (Space.listRow + Space.rowGap)) - 1)

    function toFirst() {
        root.currentIndex = 0
        root.positionViewAtBeginning()
    }

    function step(by: int) {
        root.currentIndex = Math.max(0, Math.min(root.count - 1, root.currentIndex + by))
    }

    function line(index: int): ClipLine {
        return root.itemAtIndex(index) as ClipLine
    }

    // Copies the clip of a row, or pastes it too where the person was before. False when there is no such row.
    function use(index: int, paste: bool): bool {
        const id = ClipboardManager.idAt(index) // the rows go when the island closes
        if (!id)
            return false
        root.currentIndex = index
        if (paste)
            IslandController.close()
        else
            root.line(index)?.confirm()
        ClipboardManager.use(id, paste)
        return true
    }

    function pinCurrent(): bool {
        const id = ClipboardManager.idAt(root.currentIndex)
        if (id)
            ClipboardManager.togglePin(id)
        return id !== ""
    }

    function removeCurrent(): bool {
        const id = ClipboardManager.idAt(root.currentIndex)
        if (id)
            ClipboardManager.remove(id)
        return id !== ""
    }

    Accessible.name: qsTr("Clips")
    Accessible.role: Accessible.List
    bottomMargin: Space.m
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    highlightMoveDuration: 0
    model: ClipboardManager.model
    onIsShownChanged: ClipboardManager.setActive(root.isShown)
    spacing: Space.rowGap

    delegate: ClipLine {
        // qmllint disable unqualified
        accent: root.accent
        isCurrent: index === root.currentIndex
        width: root.width
        onUseWanted: paste => root.use(index, paste)
        // qmllint enable unqualified
    }

    // A transition that takes no time would never let go of its row.
    add: Motion.row > 0 ? coming : null
    displaced: Motion.row > 0 ? yielding : null
    move: Motion.row > 0 ? yielding : null
    remove: Motion.row > 0 ? going : null

    Transition {
        id: coming
        SequentialAnimation {
            PropertyAction { property: "opacity"; value: 0 }
            PauseAnimation { duration: Motion.row * 0.4 }
            NumberAnimation { property: "opacity"; to: 1; duration: Motion.row * 0.6 }
        }
    }
    Transition {
        id: going
        NumberAnimation { property: "opacity"; to: 0; duration: Motion.row * 0.4 }
    }
    Transition {
        id: yielding
        NumberAnimation { property: "y"; duration: Motion.row * 0.6; easing.type: Easing.OutCubic }
        NumberAnimation { property: "opacity"; to: 1; duration: Motion.row * 0.6 }
    }
}
