import QtQuick
import Velm.Island
import Velm.Theme

// The window's content: the island at the middle of the top edge, on nothing.
FocusScope {
    id: root

    property alias glance: island.glance
    property alias isDropTargeted: island.isDropTargeted
    property alias dropCount: island.dropCount
    property bool isStill: false // no motion: for pictures
    property bool isMotionReduced: false

    LayoutMirroring.childrenInherit: true
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    focus: true
    height: Space.windowHeight
    width: Space.windowWidth

    Keys.onPressed: event => event.accepted = keys.take(event)

    SectionKeys { id: keys }
    Binding { target: Motion; property: "still"; value: root.isStill }
    Binding { target: Motion; property: "reduced"; value: root.isMotionReduced }
    Island {
        id: island
        anchors.horizontalCenter: parent.horizontalCenter
        focus: true
    }
    Connections {
        target: root.Window.window
        function onAfterAnimating() {
            IslandController.setPaintedOutline(island.width, island.height, island.corner, island.shoulder)
        }
    }
}
