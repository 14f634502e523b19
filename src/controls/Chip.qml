import QtQuick
import Velm.Theme

// One choice of several, with how many it would show. Its width does not change when it is chosen.
Pressable {
    id: root

    property string text
    property string count
    property string symbol
    property color dot: "transparent"
    property color accent: Ink.text
    readonly property real gap: Space.s - Space.xxs
    readonly property real words: Math.ceil(textWidth.advanceWidth) + (count === "" ? 0 : gap + Math.ceil(countWidth.advanceWidth))

    implicitHeight: Space.control
    implicitWidth: words + (symbol === "" ? 0 : Space.symbolSmall + gap) + (dot.a > 0 ? Space.s + gap : 0)
        + 2 * Space.s + Space.xxs
    isCheckable: true
    label: count === "" ? text : text + ", " + count
    role: Accessible.RadioButton

    TextMetrics {
        id: textWidth
        font: strongFont.font
        text: root.text
    }
    TextMetrics {
        id: countWidth
        font: strongFont.font
        text: root.count
    }
    Label {
        id: strongFont
        font.pixelSize: Type.control
        strong: true
        visible: false
    }
    Rectangle {
        anchors.fill: parent
        color: root.isChecked ? Ink.wash(root.accent) : root.isHovered ? Ink.raised : Ink.card
        radius: root.radius
    }
    Row {
        anchors.centerIn: parent
        spacing: root.gap

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            color: root.dot
            height: width
            radius: width / 2
            visible: root.dot.a > 0
            width: Space.s
        }
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: root.isChecked ? root.accent : Ink.second
            name: root.symbol
            size: Space.symbolSmall
            visible: root.symbol !== ""
        }
        Label {
            Accessible.ignored: true
            color: root.isChecked ? root.accent : Ink.text
            font.pixelSize: Type.control
            strong: root.isChecked
            text: root.text
        }
        Label {
            Accessible.ignored: true
            color: root.isChecked ? root.accent : Ink.second
            font.pixelSize: Type.control
            strong: root.isChecked
            text: root.count
            visible: root.count !== ""
        }
    }
}
