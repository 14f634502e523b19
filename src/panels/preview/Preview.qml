import QtQuick
import Velm.Theme

// The window's content over a desktop, without motion: what pictures are taken of.
Item {
    id: root

    property alias main: main

    height: Space.windowHeight
    width: Space.windowWidth

    Backdrop { anchors.fill: parent }
    Main {
        id: main
        anchors.fill: parent
        focus: true
        isStill: true
    }
}
