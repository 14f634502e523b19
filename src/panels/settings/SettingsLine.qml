import QtQuick
import Velm.Controls
import Velm.Theme

// A line of a card: words, a line of detail, and at the end whatever it is given.
Item {
    id: root

    property string text
    property string detail
    property string symbol
    property color symbolInk: Ink.second
    property bool isLast: false
    default property alias content: end.data

    height: Math.max(detail === "" ? Space.line : Space.lineWithDetail, words.height + 2 * Space.s)
    width: parent ? parent.width : 0

    Symbol {
        id: sign
        anchors.left: parent.left
        anchors.leftMargin: Space.l
        anchors.verticalCenter: parent.verticalCenter
        color: root.symbolInk
        name: root.symbol
        visible: root.symbol !== ""
    }
    Column {
        id: words
        anchors.left: sign.visible ? sign.right : parent.left
        anchors.leftMargin: sign.visible ? Space.m : Space.l
        anchors.right: end.left
        anchors.rightMargin: Space.l
        anchors.verticalCenter: parent.verticalCenter

        Label {
            text: root.text
            width: parent.width
            wrapMode: Text.Wrap
        }
        Label {
            dim: true
            font.pixelSize: Type.control
            text: root.detail
            visible: root.detail !== ""
            width: parent.width
            wrapMode: Text.Wrap
        }
    }
    Row {
        id: end
        anchors.right: parent.right
        anchors.rightMargin: Space.l
        anchors.verticalCenter: parent.verticalCenter
        spacing: Space.xs
    }
    Rectangle {
        anchors.bottom: parent.bottom
        anchors.left: words.left
        anchors.right: parent.right
        color: Ink.hairline
        height: Space.hair
        visible: !root.isLast
    }
}
