import QtQuick
import Velm.Theme

// A few words beside what they name, while the pointer rests there. Put last into the item that it names.
Rectangle {
    id: root

    enum Side { Right, Left, Below }

    property string text
    property int side: Tooltip.Right
    readonly property bool isMirrored: LayoutMirroring.enabled
    readonly property bool isAtRight: side === Tooltip.Right !== isMirrored

    color: Ink.track
    height: Space.tooltip
    radius: Space.chip
    visible: false
    width: words.implicitWidth + 2 * Space.row
    x: side === Tooltip.Below ? belowX() : isAtRight ? parent.width + Space.s : -width - Space.s
    y: side === Tooltip.Below ? parent.height + Space.xs : Math.round((parent.height - height) / 2)
    z: 10

    // The end of the tooltip stands at the end of its owner, so that one at the panel's edge stays inside.
    function belowX(): real {
        return root.isMirrored ? 0 : root.parent.width - root.width
    }

    Label {
        id: words
        Accessible.ignored: true
        anchors.centerIn: parent
        font.pixelSize: Type.control
        text: root.text
    }
}
