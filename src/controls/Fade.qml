import QtQuick
import Velm.Theme

// The end of a list: a square gradient into the colour that it lies on.
Rectangle {
    id: root

    property color ground: Ink.island

    height: Space.fade

    gradient: Gradient {
        GradientStop { position: 0; color: Ink.veil(root.ground, 0) }
        GradientStop { position: 1; color: root.ground }
    }
}
