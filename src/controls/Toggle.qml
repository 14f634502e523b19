import QtQuick
import Velm.Theme

// A switch. It shows `isChecked` and asks by `activated`; what it stands for changes elsewhere. A locked one
// does nothing and says why.
Pressable {
    id: root

    property color accent: Ink.text
    property string lock
    readonly property bool isLocked: lock !== ""
    readonly property real gap: Space.xxs
    readonly property bool isAtEnd: isChecked !== LayoutMirroring.enabled

    hint: lock
    implicitHeight: Space.switchHeight
    implicitWidth: Space.switchWidth
    isCheckable: true
    radius: height / 2
    role: Accessible.CheckBox

    Rectangle {
        anchors.fill: parent
        color: root.isChecked ? root.accent : Ink.off
        opacity: root.isLocked ? 0.5 : 1
        radius: root.radius

        Behavior on color {
            ColorAnimation { duration: Motion.press }
        }
    }
    Rectangle {
        color: root.isChecked ? Ink.onAccent : Ink.second
        height: root.height - 2 * root.gap
        radius: height / 2
        width: height
        x: root.isAtEnd ? root.width - width - root.gap : root.gap
        y: root.gap

        Behavior on x {
            NumberAnimation { duration: Motion.press; easing.type: Easing.OutCubic }
        }
    }
    Tooltip {
        side: Tooltip.Left
        text: root.lock
        visible: root.isLocked && (root.isHovered || root.activeFocus)
    }
}
