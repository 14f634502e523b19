import QtQuick
import Velm.Controls
import Velm.Panels
import Velm.Theme

// The time and the day, and at the other end the next useful thing.
Reveal {
    id: root

    property real belowHousing: 0
    property Glance glance
    readonly property bool isLow: belowHousing > 0

    delay: Motion.wordsDelay
    enter: Motion.wordsIn
    rise: 0

    Binding {
        property: "isTicking"
        target: WallClock
        value: root.isShown
    }
    Item {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: Space.peekInset
        anchors.right: parent.right
        anchors.rightMargin: Space.peekInset
        height: parent.height - root.belowHousing

        Digits {
            id: clock
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            size: root.isLow ? Type.lead : Type.display
            text: WallClock.time
        }
        Label {
            anchors.left: clock.right
            anchors.leftMargin: Space.row
            anchors.right: end.left
            anchors.rightMargin: Space.row
            anchors.verticalCenter: parent.verticalCenter
            dim: true
            font.pixelSize: root.isLow ? Type.control : Type.body
            text: WallClock.date
        }
        Row {
            id: end
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: Space.row

            Ring {
                anchors.verticalCenter: parent.verticalCenter
                color: root.glance.tint
                height: width
                value: Math.max(0, root.glance.progress)
                visible: root.glance.progress >= 0
                width: Space.capSize
            }
            Digits {
                anchors.verticalCenter: parent.verticalCenter
                size: root.isLow ? Type.lead : Type.title
                text: root.glance.text
            }
        }
    }
}
