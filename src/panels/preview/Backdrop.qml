import QtQuick
import QtQuick.Shapes

// A desktop to be judged on: a picture, a light window, a dark window, a bar at the top.
Rectangle {
    id: root

    gradient: Gradient {
        GradientStop { position: 0; color: "lightsteelblue" }
        GradientStop { position: 0.55; color: "bisque" }
        GradientStop { position: 1; color: "rosybrown" }
    }

    Shape {
        anchors.fill: parent

        ShapePath {
            fillColor: "lightslategray"
            startY: 330
            strokeColor: "transparent"

            PathCubic { control1X: 220; control1Y: 210; control2X: 500; control2Y: 420; x: 800; y: 300 }
            PathLine { x: 800; y: 500 }
            PathLine { x: 0; y: 500 }
        }
        ShapePath {
            fillColor: "slategray"
            startY: 420
            strokeColor: "transparent"

            PathCubic { control1X: 300; control1Y: 330; control2X: 480; control2Y: 500; x: 800; y: 390 }
            PathLine { x: 800; y: 500 }
            PathLine { x: 0; y: 500 }
        }
    }
    Rectangle {
        color: "snow"
        height: 380
        radius: 10
        width: 420
        x: -60
        y: 60

        Repeater {
            model: 14

            Rectangle {
                required property int index

                color: "gainsboro"
                height: 7
                radius: 3
                width: 220 + (index * 53) % 130
                x: 30
                y: 56 + index * 22
            }
        }
    }
    Rectangle {
        border.color: "dimgray"
        color: Qt.rgba(0.11, 0.12, 0.15, 1)
        height: 330
        radius: 10
        width: 450
        x: root.width - 390
        y: 96

        Repeater {
            model: 12

            Rectangle {
                required property int index

                color: "slategray"
                height: 6
                radius: 3
                width: 120 + (index * 71) % 180
                x: 24 + (index % 4) * 14
                y: 52 + index * 22
            }
        }
    }
    Rectangle {
        color: "whitesmoke"
        height: 28
        opacity: 0.4
        width: parent.width
    }
}
