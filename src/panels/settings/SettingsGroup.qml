import QtQuick
import Velm.Controls
import Velm.Theme

// Lines that belong together, on one card, with words above it where they need some.
Column {
    id: root

    property string heading
    default property alias lines: column.data

    width: parent ? parent.width : 0

    Label {
        dim: true
        font.pixelSize: Type.control
        height: Math.max(Type.grow(Space.xxl + Space.xs), implicitHeight + Space.l)
        leftPadding: Space.l
        rightPadding: Space.l
        text: root.heading
        visible: root.heading !== ""
        width: parent.width
        wrapMode: Text.Wrap
    }
    Card {
        height: column.height
        width: parent.width

        Column {
            id: column
            width: parent.width
        }
    }
}
