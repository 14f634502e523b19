import QtQuick
import Velm.Controls
import Velm.Island
import Velm.Theme

// The one body that rests, peeks, catches and opens. Its four measures follow the controller on one curve;
// what is in it comes when the body is mostly there.
Item {
    id: root

    property Glance glance: Glance {}
    property bool isDropTargeted: false
    property int dropCount: 0
    readonly property string form: forms[IslandController.mode] ?? (IslandController.hasActivity ? "pill" : "idle")
    readonly property var forms: ({
        [IslandMode.Peek]: "peek",
        [IslandMode.Catching]: "catching",
        [IslandMode.Expanded]: "expanded"
    })
    readonly property bool isOpen: form === "expanded"
    readonly property bool isMoving: spread !== IslandController.islandWidth || drop !== IslandController.islandHeight
    readonly property real belowHousing: IslandController.isHardware ? IslandController.notchHeight - Space.xxs : 0

    // The measures on their way; the body is drawn on whole pixels of them.
    property real spread: IslandController.islandWidth
    property real drop: IslandController.islandHeight
    property real corner: Space.corner[form]
    property real shoulder: Space.shoulder[form]

    // Fixed at the start of each way.
    readonly property bool wasOpen: drop > Space.closedTallest
    readonly property int way: isOpen ? Motion.open : wasOpen ? Motion.close : Motion.peek
    readonly property int pause: !isOpen && wasOpen ? Motion.closeDelay : 0
    readonly property real spring: isOpen ? Motion.overshoot : 0

    component Way: SequentialAnimation {
        id: way

        property int duration
        property int pause
        property real spring: 0

        PauseAnimation { duration: way.pause }
        NumberAnimation { duration: way.duration; easing.overshoot: way.spring; easing.type: Motion.curve }
    }

    height: Math.round(drop)
    width: 2 * Math.round(spread / 2)

    Behavior on spread { Way { duration: root.way; pause: root.pause } }
    Behavior on drop { Way { duration: root.way; pause: root.pause; spring: root.spring } }
    Behavior on corner { Way { duration: root.way; pause: root.pause } }
    Behavior on shoulder { Way { duration: root.way; pause: root.pause } }

    AmbientGlow {
        edge: root.width
        isOn: IslandController.ambient && root.form === "idle"
        y: root.height - height / 2 - Space.xs
    }
    IslandShape {
        anchors.fill: parent
        isRaised: root.form !== "idle" || root.isMoving
        radius: root.corner
        shadowRadius: Space.corner[root.form]
        shoulder: root.shoulder
    }
    Item {
        anchors.fill: parent
        clip: root.isMoving

        ActivityPill {
            anchors.fill: parent
            belowHousing: root.belowHousing
            isShown: root.form === "pill"
        }
        PeekRow {
            anchors.fill: parent
            belowHousing: root.belowHousing
            glance: root.glance
            isShown: root.form === "peek"
        }
        CatchingZone {
            anchors.fill: parent
            belowHousing: root.belowHousing
            count: root.dropCount
            isShown: root.form === "catching"
            isTargeted: root.isDropTargeted
        }
        Panel {
            anchors.horizontalCenter: parent.horizontalCenter
            isOpen: root.isOpen
            isSettled: root.isOpen && !root.isMoving
        }
    }
}
