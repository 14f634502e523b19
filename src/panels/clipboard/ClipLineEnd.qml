import QtQuick
import Velm.Clipboard
import Velm.Controls
import Velm.Theme

// The end of a clip's row: what can be done with it while it is selected, whether it is pinned, its age and key.
Item {
    id: root

    property var row
    property color accent: Ink.text
    property bool isCurrent: false
    property bool isActive: false
    property int number: 0

    signal pasteWanted

    width: (isActive ? actions.width : 0) + Space.rowActions

    Row {
        id: actions
        anchors.right: parent.right
        anchors.rightMargin: Space.rowActions
        anchors.verticalCenter: parent.verticalCenter
        visible: root.isActive

        Button {
            ink: Ink.text
            isTabStop: false
            label: qsTr("Paste")
            symbol: "doc.on.clipboard"
            onActivated: root.pasteWanted()
        }
        Button {
            ink: root.row.pinned ? root.accent : Ink.text
            isTabStop: false
            label: root.row.pinned ? qsTr("Unpin") : qsTr("Pin")
            symbol: "pin.fill"
            onActivated: ClipboardManager.togglePin(root.row.id)
        }
        Button {
            ink: Ink.text
            isTabStop: false
            label: qsTr("Delete")
            symbol: "trash"
            onActivated: ClipboardManager.remove(root.row.id)
        }
    }
    Rectangle {
        anchors.right: parent.right
        anchors.rightMargin: Space.rowDot
        anchors.verticalCenter: parent.verticalCenter
        color: root.accent
        height: width
        radius: width / 2
        visible: root.row.pinned === true && !root.isActive
        width: Space.dot
    }
    Caption {
        anchors.right: parent.right
        anchors.rightMargin: Space.rowAge
        anchors.verticalCenter: parent.verticalCenter
        text: root.row.age
    }
    KeyCap {
        anchors.right: parent.right
        anchors.rightMargin: Space.s
        anchors.verticalCenter: parent.verticalCenter
        color: root.isCurrent ? Ink.well : Ink.card
        text: root.number
        visible: root.number <= 9
    }
}
