import QtQuick
import Velm.Theme

// A symbol on a small round-cornered ground.
Rectangle {
    id: root

    property string symbol
    property color ink: Ink.text
    property int size: Space.symbolSmall

    color: Ink.card
    height: width
    radius: Space.tileRadius
    width: Space.tile

    Symbol {
        anchors.centerIn: parent
        color: root.ink
        name: root.symbol
        size: root.size
        visible: root.symbol !== ""
    }
}
