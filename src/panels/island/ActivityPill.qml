import QtQuick
import Velm.Controls
import Velm.Island
import Velm.Theme

// What has just happened: its symbol (in a ring where it goes on), what it is, and lighter at the end, more.
Reveal {
    id: root

    property real belowHousing: 0
    readonly property bool isLow: belowHousing > 0
    property var shown: IslandController.activity // stays while it fades out
    readonly property bool isRunning: shown.progress >= 0
    readonly property color tint: Ink.tint(shown.tint)

    Accessible.name: shown.leading + " " + shown.trailing
    Accessible.role: Accessible.AlertMessage
    delay: Motion.wordsDelay
    enter: Motion.wordsIn
    rise: 0

    Binding {
        property: "shown"
        restoreMode: Binding.RestoreNone
        target: root
        value: IslandController.activity
        when: IslandController.hasActivity
    }
    Item {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        height: parent.height - root.belowHousing

        SymbolTile {
            id: tile
            anchors.left: parent.left
            anchors.leftMargin: Space.pillInset
            anchors.verticalCenter: parent.verticalCenter
            color: root.isRunning ? "transparent" : Ink.veil(root.tint, 0.2)
            ink: root.tint
            radius: root.isLow ? Space.tileRadius : Space.pillTileRadius
            size: root.isRunning ? (root.isLow ? Space.markSize : Space.symbol)
                                 : (root.isLow ? Space.symbolSmall : Space.symbolLarge)
            symbol: root.shown.icon
            width: root.isLow ? Space.xl : Space.pillTile
        }
        Ring {
            anchors.fill: tile
            color: root.tint
            line: root.isLow ? Space.ringLineLow : Space.ringLine
            value: Math.max(0, root.shown.progress)
            visible: root.isRunning
        }
        Label {
            id: leading
            anchors.left: tile.right
            anchors.leftMargin: root.isLow ? Space.row : Space.m + Space.hair
            anchors.verticalCenter: parent.verticalCenter
            strong: true
            text: root.shown.leading
            width: Math.min(implicitWidth, parent.width - tile.width - 2 * Space.pillEnd - Space.m)
        }
        Label {
            anchors.left: leading.right
            anchors.leftMargin: Space.m
            anchors.right: parent.right
            anchors.rightMargin: Space.pillEnd
            anchors.verticalCenter: parent.verticalCenter
            dim: true
            horizontalAlignment: Text.AlignRight
            text: root.shown.trailing
            visible: !root.isRunning && width > Space.xl
        }
        Digits {
            anchors.right: parent.right
            anchors.rightMargin: Space.pillEnd
            anchors.verticalCenter: parent.verticalCenter
            color: Ink.second
            size: Type.body
            text: root.shown.trailing
            tracking: 0
            visible: root.isRunning
            weight: Font.Normal
        }
    }
}
