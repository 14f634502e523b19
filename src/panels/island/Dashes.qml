import QtQuick
import QtQuick.Shapes
import Velm.Theme

// A dashed round-cornered outline.
Shape {
    id: root

    property real radius: Space.zone
    readonly property real inset: Space.hair
    readonly property real bend: radius
    readonly property real far: width - inset
    readonly property real low: height - inset

    ShapePath {
        capStyle: ShapePath.FlatCap
        dashPattern: [4, 4]
        fillColor: "transparent"
        startX: root.inset + root.bend
        startY: root.inset
        strokeColor: Ink.third
        strokeStyle: ShapePath.DashLine
        strokeWidth: 1.5

        PathLine { x: root.far - root.bend; y: root.inset }
        PathArc { x: root.far; y: root.inset + root.bend; radiusX: root.bend; radiusY: root.bend }
        PathLine { x: root.far; y: root.low - root.bend }
        PathArc { x: root.far - root.bend; y: root.low; radiusX: root.bend; radiusY: root.bend }
        PathLine { x: root.inset + root.bend; y: root.low }
        PathArc { x: root.inset; y: root.low - root.bend; radiusX: root.bend; radiusY: root.bend }
        PathLine { x: root.inset; y: root.inset + root.bend }
        PathArc { x: root.inset + root.bend; y: root.inset; radiusX: root.bend; radiusY: root.bend }
    }
}
