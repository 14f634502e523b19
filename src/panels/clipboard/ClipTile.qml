import QtQuick
import Velm.Controls
import Velm.Theme

// The kind of a clip as a symbol; the colour or the picture itself where there is one.
SymbolTile {
    id: root

    property var row
    property bool isConfirmed: false
    readonly property bool isSwatch: row.swatch.a > 0 && !isConfirmed
    readonly property bool isPicture: picture.status === Image.Ready && !isConfirmed
    readonly property string address: row.thumbnail

    function pixels(points: real): int {
        return Math.round(points * Screen.devicePixelRatio)
    }

    symbol: isConfirmed ? "checkmark" : isSwatch || isPicture ? "" : row.icon

    Rectangle {
        anchors.fill: parent
        color: root.row.swatch ?? "transparent"
        radius: root.radius
        visible: root.isSwatch
    }
    Rectangle { // so that a dark one has an edge
        anchors.fill: parent
        border.color: Ink.edge
        border.width: Space.hair
        color: "transparent"
        radius: root.radius
        visible: root.isSwatch
    }
    Image {
        id: picture
        anchors.fill: parent
        asynchronous: true
        source: root.address === "" ? "" : "%1/%2/%3".arg(root.address).arg(root.pixels(root.radius)).arg(root.pixels(width))
        visible: root.isPicture
    }
}
