import QtQuick
import Velm.Theme

// Words: 13, white. `dim` for what is about something, `strong` for titles, names and what is chosen.
Text {
    property bool strong: false
    property bool dim: false

    color: dim ? Ink.second : Ink.text
    elide: Text.ElideRight
    font.pixelSize: Type.body
    font.weight: strong ? Font.DemiBold : Font.Normal
    horizontalAlignment: Text.AlignLeft
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
}
