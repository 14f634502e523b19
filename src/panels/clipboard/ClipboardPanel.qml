import QtQuick
import Velm.App
import Velm.Clipboard
import Velm.Controls
import Velm.Island
import Velm.Theme

// The clipboard history. The field has the keyboard from the start: a letter searches, arrows move in the list,
// and as long as nothing is typed P, Delete and the digits act on the list.
Section {
    id: root

    readonly property bool isOff: !Settings.clipboardEnabled
    readonly property bool isPaused: ClipboardManager.isPaused
    readonly property string countText: ClipboardManager.totalCount === 1 ? qsTr("1 clip")
                                                                         : qsTr("%n clips", "", ClipboardManager.totalCount)
    readonly property string pinnedText: qsTr("%n pinned", "", ClipboardManager.pinnedCount)
    readonly property string heldText: ClipboardManager.pinnedCount > 0 ? qsTr("%1, %2").arg(root.countText).arg(root.pinnedText)
                                                                      : root.countText

    accent: Ink.accent("clipboard")
    stateInk: isPaused || isOff || !Settings.ignoreConcealed ? Ink.warning : Ink.second
    stateText: isOff ? qsTr("Off") : isPaused ? qsTr("Paused")
        : Settings.ignoreConcealed ? heldText : qsTr("%1, confidential ones too").arg(heldText)
    title: VelmTabs.title(VelmTab.Clipboard)

    actions: [
        Button {
            label: root.isPaused ? qsTr("Resume clipboard capture") : qsTr("Pause clipboard capture")
            symbol: root.isPaused ? "play.circle.fill" : "pause.circle.fill"
            visible: !root.isOff
            onActivated: ClipboardManager.togglePause()
        },
        Button {
            enabled: ClipboardManager.totalCount > ClipboardManager.pinnedCount
            label: qsTr("Clear all that are not pinned")
            symbol: "trash"
            onActivated: ClipboardManager.clearUnpinned()
        }
    ]

    Keys.onPressed: event => keys.take(event)
    onIsCurrentChanged: {
        if (root.isCurrent)
            keys.begin()
    }

    Connections {
        target: ClipboardManager
        function onFilterChanged() { list.toFirst() }
        function onSearchChanged() {
            search.text = ClipboardManager.search
            list.toFirst()
        }
    }
    ClipKeys {
        id: keys
        list: list
        search: search
    }
    SearchField {
        id: search
        accent: root.accent
        anchors.left: parent.left
        anchors.right: filters.left
        anchors.rightMargin: Space.s
        input.focus: true
        placeholder: qsTr("Search")
        onEdited: ClipboardManager.search = text
        onClicked: isTyping = true
        onKeyPressed: event => keys.take(event)
    }
    ClipFilters {
        id: filters
        accent: root.accent
        anchors.right: parent.right
        room: parent.width - Space.searchLeast - Space.s
    }
    ClipList {
        id: list
        accent: root.accent
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: filters.bottom
        anchors.topMargin: Space.m
        isShown: root.isCurrent || root.isShown
    }
    Fade {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        visible: list.contentHeight > list.height && !list.atYEnd
    }
    ClipEmpty {
        accent: root.accent
        anchors.centerIn: parent
        isOff: root.isOff
        visible: list.count === 0
        width: parent.width - 2 * Space.xxl
        onAllWanted: keys.begin()
    }
}
