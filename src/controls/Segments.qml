import QtQuick
import Velm.Theme

// One of a few pages or ways, side by side. Left and right keys move the choice.
Rectangle {
    id: root

    property var items: []
    property int current: 0

    signal chosen(int index)

    color: Ink.card
    implicitHeight: Space.segment
    implicitWidth: row.width + 2 * Space.xxs
    radius: Space.row

    Accessible.role: Accessible.PageTabList
    activeFocusOnTab: true

    Keys.onLeftPressed: root.step(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: root.step(LayoutMirroring.enabled ? -1 : 1)

    function step(by: int) {
        root.chosen(Math.max(0, Math.min(root.items.length - 1, root.current + by)))
    }

    Rectangle {
        readonly property Item target: segments.count > 0 ? segments.itemAt(root.current) : null

        color: Ink.track
        height: row.height
        radius: Space.chip
        width: target ? target.width : 0
        x: row.x + (target ? target.x : 0)
        y: Space.xxs

        Behavior on x {
            NumberAnimation { duration: Motion.tab; easing.type: Easing.OutCubic }
        }
    }
    Row {
        id: row
        anchors.centerIn: parent
        height: root.height - 2 * Space.xxs

        Repeater {
            id: segments
            model: root.items

            Pressable {
                // qmllint disable unqualified
                id: segment

                required property int index
                required property string modelData

                height: row.height
                isCheckable: true
                isChecked: index === root.current
                isTabStop: false
                label: modelData
                role: Accessible.PageTab
                width: words.implicitWidth + Space.xl
                onActivated: root.chosen(index)
                // qmllint enable unqualified

                Label {
                    id: words
                    Accessible.ignored: true
                    anchors.centerIn: parent
                    color: segment.isChecked || segment.isHovered ? Ink.text : Ink.second
                    font.pixelSize: Type.control
                    strong: segment.isChecked
                    text: segment.modelData
                }
            }
        }
    }
    FocusRing {
        around: root.radius
        visible: root.activeFocus
    }
}
