import QtQuick
import Velm.Controls
import Velm.Theme

// Where dragged files can be let go: a dashed outline that fills from the middle when they are over it.
Reveal {
    id: root

    property real belowHousing: 0
    property bool isTargeted: false
    property int count: 0
    readonly property color accent: Ink.accent("shelf")
    readonly property color ink: isTargeted ? Ink.onAccent : Ink.text

    delay: Motion.wordsDelay
    enter: Motion.wordsIn
    rise: 0

    Item {
        anchors.fill: parent
        anchors.margins: Space.m
        anchors.topMargin: root.belowHousing > 0 ? root.belowHousing + Space.s : Space.m

        Rectangle {
            anchors.fill: parent
            color: root.accent
            opacity: root.isTargeted ? 1 : 0
            radius: Space.zone
            scale: root.isTargeted ? 1 : 0.96

            Behavior on opacity { NumberAnimation { duration: Motion.drag } }
            Behavior on scale { NumberAnimation { duration: Motion.drag; easing.type: Easing.OutCubic } }
        }
        Dashes {
            anchors.fill: parent
            opacity: root.isTargeted ? 0 : 1
            radius: Space.zone

            Behavior on opacity { NumberAnimation { duration: Motion.drag } }
        }
        Row {
            anchors.centerIn: parent
            spacing: Space.card

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                color: root.isTargeted ? Ink.onAccent : Ink.second
                name: "tray.and.arrow.down.fill"
                size: Space.symbolEmpty
            }
            Column {
                anchors.verticalCenter: parent.verticalCenter

                Label {
                    color: root.ink
                    font.pixelSize: Type.lead
                    strong: true
                    text: qsTr("Drop to park")
                }
                Label {
                    color: root.isTargeted ? Ink.onAccent : Ink.second
                    font.pixelSize: Type.control
                    text: root.count === 1 ? qsTr("1 file") : qsTr("%n files", "", root.count)
                    visible: root.count > 0
                }
            }
        }
    }
}
