import QtQuick
import Velm.Theme

// A key to press, drawn as its cap.
Rectangle {
    id: root

    property string text

    color: Ink.card
    height: Space.capSize
    radius: Space.cap
    width: Math.max(height, words.implicitWidth + Space.row)

    Caption {
        id: words
        Accessible.ignored: true
        anchors.centerIn: parent
        font.weight: Font.DemiBold
        text: root.text
    }
}
