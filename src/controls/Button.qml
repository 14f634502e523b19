import QtQuick
import Velm.Theme

// A word, a symbol or both. One primary button at most in a panel.
Pressable {
    id: root

    property string text
    property string symbol
    property bool isPrimary: false
    property color accent: Ink.text
    readonly property bool hasWords: text !== ""
    property color ink: isPrimary ? Ink.onAccent : hasWords || isHovered ? Ink.text : Ink.second
    readonly property real gap: Space.s - Space.xxs

    implicitHeight: hasWords ? Space.control : Space.symbolButton
    implicitWidth: hasWords ? row.width + 2 * Space.m : Space.symbolButton
    label: text
    opacity: enabled ? 1 : 0.4

    Rectangle {
        anchors.fill: parent
        color: root.isPrimary ? root.accent : root.hasWords ? Ink.raised : "transparent"
        radius: root.radius
    }
    Rectangle {
        anchors.fill: parent
        color: root.isPressed ? Ink.hairline : Ink.hover
        radius: root.radius
        visible: root.isHovered
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: root.gap

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: root.ink
            name: root.symbol
            size: root.hasWords ? Space.symbolSmall : Space.symbol
            visible: root.symbol !== ""
        }
        Label {
            Accessible.ignored: true
            color: root.ink
            font.pixelSize: Type.control
            strong: true
            text: root.text
            visible: root.hasWords
        }
    }
    Tooltip {
        side: Tooltip.Below
        text: root.label
        visible: root.isHovered && !root.hasWords
    }
}
