import QtQuick
import QtQuick.Shapes
import Velm.Controls
import Velm.Theme

// The island's body, flush with the screen's edge. At rest it is the housing itself: no shadow, no edge.
Item {
    id: root

    property real radius: Space.corner.idle
    property real shoulder: Space.shoulder.idle
    property real shadowRadius: Space.corner.expanded
    property bool isRaised: false

    Shadow {
        anchors.fill: parent
        anchors.bottomMargin: -Space.m // it hangs lower than the body
        opacity: 0.55
        radius: root.shadowRadius
        visible: root.isRaised
    }
    Shape {
        anchors.fill: parent

        IslandOutline {
            fillColor: Ink.island
            height: root.height
            radius: root.radius
            shoulder: root.shoulder
            width: root.width
        }
        IslandOutline {
            height: root.height
            inset: 0.5
            radius: root.radius
            shoulder: root.shoulder
            strokeColor: root.isRaised ? Ink.edge : "transparent"
            width: root.width
        }
    }
}
