import QtQuick
import Velm.Theme

// A symbol by its name, drawn as text: its tint is the text's colour.
Text {
    id: root

    property string name
    property int size: Space.symbol
    readonly property bool isFlipped: LayoutMirroring.enabled && Symbols.isMirrored(root.name)

    Accessible.ignored: true
    color: Ink.text
    font.family: Type.symbols
    font.hintingPreference: Font.PreferNoHinting
    font.pixelSize: root.size
    height: root.size
    horizontalAlignment: Text.AlignHCenter
    rotation: Symbols.lies(root.name) ? 90 : 0
    text: Symbols.glyph(root.name)
    textFormat: Text.PlainText
    verticalAlignment: Text.AlignVCenter
    width: root.size

    transform: Scale {
        origin.x: root.size / 2
        xScale: root.isFlipped ? -1 : 1
    }
}
