import QtQuick
import QtQuick.Shapes

// The island's outline: concave quarter arcs outside the width, straight sides, each lower corner a cubic that
// begins early and bends late. `inset` puts a line of one pixel on the pixels.
ShapePath {
    id: root

    property real width
    property real height
    property real radius
    property real shoulder
    property real inset: 0
    readonly property real right: width - inset
    readonly property real bottom: height - inset
    readonly property real bend: Math.min(radius * 1.2, bottom, width / 2)
    readonly property real handle: bend * 0.4

    fillColor: "transparent"
    startX: inset - shoulder
    startY: -1
    strokeColor: "transparent"
    strokeWidth: 1

    PathLine { x: root.inset - root.shoulder; y: 0 }
    PathArc { x: root.inset; y: root.shoulder; radiusX: root.shoulder; radiusY: root.shoulder }
    PathLine { x: root.inset; y: root.bottom - root.bend }
    PathCubic {
        control1X: root.inset
        control1Y: root.bottom - root.handle
        control2X: root.inset + root.handle
        control2Y: root.bottom
        x: root.inset + root.bend
        y: root.bottom
    }
    PathLine { x: root.right - root.bend; y: root.bottom }
    PathCubic {
        control1X: root.right - root.handle
        control1Y: root.bottom
        control2X: root.right
        control2Y: root.bottom - root.handle
        x: root.right
        y: root.bottom - root.bend
    }
    PathLine { x: root.right; y: root.shoulder }
    PathArc { x: root.right + root.shoulder; y: 0; radiusX: root.shoulder; radiusY: root.shoulder }
    PathLine { x: root.right + root.shoulder; y: -1 }
}
