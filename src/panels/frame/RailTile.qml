import QtQuick
import Velm.Controls
import Velm.Theme

Pressable {
    id: root

    property string symbol

    height: Space.railTile
    isCheckable: true
    role: Accessible.PageTab
    width: Space.railTile

    Rectangle {
        anchors.fill: parent
        color: Ink.raised
        radius: root.radius
        visible: root.isHovered && !root.isChecked
    }
    Symbol {
        anchors.centerIn: parent
        color: root.isChecked ? Ink.onAccent : root.isHovered ? Ink.text : Ink.second
        name: root.symbol

        Behavior on color {
            ColorAnimation { duration: Motion.press }
        }
    }
    Tooltip {
        text: root.label
        visible: root.isHovered || root.activeFocus
    }
}
