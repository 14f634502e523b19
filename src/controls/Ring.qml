import QtQuick
import QtQuick.Shapes
import Velm.Theme

// How much of a whole, from the top, clockwise in every language.
Shape {
    id: root

    property real value: 0
    property real line: 3
    property color color: Ink.text
    property color track: Ink.veil(color, 0.2)
    readonly property real reach: (width - line) / 2

    ShapePath {
        fillColor: "transparent"
        strokeColor: root.track
        strokeWidth: root.line

        PathAngleArc {
            centerX: root.width / 2
            centerY: root.height / 2
            radiusX: root.reach
            radiusY: root.reach
            sweepAngle: 360
        }
    }
    ShapePath {
        capStyle: ShapePath.RoundCap
        fillColor: "transparent"
        strokeColor: root.value > 0 ? root.color : "transparent"
        strokeWidth: root.line

        PathAngleArc {
            centerX: root.width / 2
            centerY: root.height / 2
            radiusX: root.reach
            radiusY: root.reach
            startAngle: -90
            sweepAngle: 360 * root.value
        }
    }
}
