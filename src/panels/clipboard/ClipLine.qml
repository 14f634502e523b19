import QtQuick
import Velm.Clipboard
import Velm.Controls
import Velm.Theme

// One clip: what it is, its first words, where it comes from, how old it is, the key that takes it.
Item {
    id: root

    required property int index
    required property var model
    property color accent: Ink.text
    property bool isCurrent: false
    readonly property var row: model
    readonly property bool isCode: row.kind === ClipKind.Code
    readonly property bool isActive: isCurrent || hover.hovered
    readonly property color ground: isCurrent ? Ink.raised : hover.hovered ? Ink.card : Ink.island

    signal useWanted(bool paste)

    // Shows for a moment that it has been copied.
    function confirm() {
        confirmation.restart()
    }

    Accessible.description: root.row.subtitle + ", " + root.row.age
    Accessible.focused: root.isCurrent
    Accessible.name: root.row.preview
    Accessible.role: Accessible.ListItem
    Accessible.selected: root.isCurrent
    Accessible.onPressAction: root.useWanted(false)
    height: Space.listRow

    ListView.onPooled: confirmation.stop()

    HoverHandler { id: hover }
    TapHandler {
        gesturePolicy: TapHandler.WithinBounds
        onTapped: root.useWanted(tapCount === 2)
    }
    SequentialAnimation {
        id: confirmation
        PauseAnimation { duration: Motion.noticed }
    }
    Rectangle {
        anchors.fill: parent
        color: root.ground
        radius: Space.row
    }
    ClipTile {
        anchors.left: parent.left
        anchors.leftMargin: Space.s
        anchors.verticalCenter: parent.verticalCenter
        row: root.row
        color: root.isCurrent ? Ink.well : hover.hovered ? Ink.raised : Ink.card
        ink: confirmation.running ? Ink.success : root.isCurrent ? root.accent : Ink.second
        isConfirmed: confirmation.running
    }
    Column {
        anchors.left: parent.left
        anchors.leftMargin: Space.rowText
        anchors.right: end.left
        anchors.rightMargin: Space.m
        anchors.verticalCenter: parent.verticalCenter

        Label {
            Accessible.ignored: true
            elide: root.row.kind === ClipKind.Files ? Text.ElideMiddle : Text.ElideRight
            font.family: root.isCode ? Type.mono : Application.font.family
            font.pixelSize: root.isCode ? Type.control : Type.body
            font.preferShaping: !root.isCode
            height: Type.bodyLine
            text: root.row.preview
            width: parent.width
        }
        Caption {
            Accessible.ignored: true
            height: Type.captionLine
            text: root.row.subtitle
            width: parent.width
        }
    }
    ClipLineEnd {
        id: end
        accent: root.accent
        anchors.right: parent.right
        row: root.row
        height: parent.height
        isActive: root.isActive
        isCurrent: root.isCurrent
        number: root.index + 1
        onPasteWanted: root.useWanted(true)
    }
}
