import QtQuick
import Velm.Theme

// Where the keyboard is. Its owner shows it; it lies around the owner's edge, one gap outside.
Rectangle {
    property real around: Space.chip

    anchors.fill: parent
    anchors.margins: -Space.ring - Space.hair
    border.color: Ink.veil(Ink.text, 0.7)
    border.width: Space.ring
    color: "transparent"
    radius: around + Space.ring + Space.hair
}
