import QtQuick
import Velm.Clipboard
import Velm.Controls
import Velm.Theme

// The filters with how many clips each would show. Where there is no room for all they scroll.
Flickable {
    id: root

    property color accent: Ink.text
    property real room: 0
    readonly property var counts: ClipboardManager.counts
    // In the order of ClipFilter.
    readonly property var names: [qsTr("All"), qsTr("Pinned"), qsTr("Text"), qsTr("Links"), qsTr("Images"), qsTr("Files")]
    readonly property var numbers: [counts.all, counts.pinned, counts.text, counts.link, counts.image, counts.files]

    function show(start: real, length: real) {
        root.contentX = Math.max(start + length - root.width, Math.min(root.contentX, start))
    }

    Accessible.name: qsTr("Show")
    Accessible.role: Accessible.Grouping
    boundsBehavior: Flickable.StopAtBounds
    clip: contentWidth > width
    contentWidth: row.width
    contentX: LayoutMirroring.enabled ? contentWidth - width : 0
    height: Space.control
    interactive: contentWidth > width
    width: Math.min(row.implicitWidth, room)

    Row {
        id: row
        spacing: Space.xs

        Repeater {
            model: root.names

            Chip {
                required property int index
                required property string modelData

                accent: root.accent // qmllint disable unqualified
                count: root.numbers[index] // qmllint disable unqualified
                isChecked: ClipboardManager.filter === index
                text: modelData
                onActiveFocusChanged: root.show(x, width) // qmllint disable unqualified
                onActivated: ClipboardManager.filter = index
            }
        }
    }
}
