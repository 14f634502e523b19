import QtQuick
import Velm.Controls
import Velm.Island
import Velm.Theme

// A slow light that walks along the lower edge of the resting island, in the accent of the last section.
Item {
    id: root

    property bool isOn: false
    property real edge: 0 // the length that it walks
    property real way: 0
    readonly property bool isWalking: isOn && !Motion.reduced && !Motion.still

    height: Space.glow.height
    opacity: isOn ? (isWalking ? 1 : 0.4) : 0
    visible: opacity > 0

    Behavior on opacity {
        NumberAnimation { duration: root.isOn ? Motion.glowIn : Motion.glowOut }
    }
    SequentialAnimation {
        loops: Animation.Infinite
        running: root.isWalking

        NumberAnimation { target: root; property: "way"; from: 0; to: 1; duration: Motion.glowWalk; easing.type: Easing.InOutSine }
        PauseAnimation { duration: Motion.glowRest }
        NumberAnimation { target: root; property: "way"; from: 1; to: 0; duration: Motion.glowWalk; easing.type: Easing.InOutSine }
        PauseAnimation { duration: Motion.glowRest }
    }
    Glow {
        height: Space.glow.height
        tint: Ink.tint(VelmTabs.accent(IslandController.tab))
        width: Space.glow.width
        // From one second pixel to the next, so that nothing is drawn between two of them.
        x: 2 * Math.round(((root.isWalking ? root.way : 0.5) * root.edge - width / 2) / 2)
    }
}
