import QtQuick
import Velm.Theme

// A list with nothing in it: a symbol, one sentence and the one action that fills it.
Column {
    id: root

    property string symbol
    property string text
    property string action
    property color accent: Ink.text

    signal activated

    SymbolTile {
        anchors.horizontalCenter: parent.horizontalCenter
        color: Ink.veil(root.accent, 0.16)
        ink: root.accent
        radius: Space.emptyRadius
        size: Space.symbolEmpty
        symbol: root.symbol
        width: Space.emptyTile
    }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        height: Math.max(Space.emptyLine, implicitHeight + 2 * Space.m)
        horizontalAlignment: Text.AlignHCenter
        lineHeight: 1.4
        text: root.text
        width: root.width
        wrapMode: Text.Wrap
    }
    Button {
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.action
        visible: root.action !== ""
        onActivated: root.activated()
    }
}
