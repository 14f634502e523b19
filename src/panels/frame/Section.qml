import QtQuick
import Velm.Controls
import Velm.Island
import Velm.Theme

// The frame of every section: title and state at the start, actions at the end, the middle clear of the
// camera housing, and the content below.
FocusScope {
    id: root

    property string title
    property string stateText
    property color stateInk: Ink.second
    property color accent: Ink.text
    property bool isCurrent: false // on its way in or there
    property bool isShown: false // to be seen, on its way out too
    readonly property real titleRoom: IslandController.isHardware ? Space.housingStart - Space.rail - Space.xl : width
    property alias actions: actions.data
    default property alias content: body.data

    focus: true

    Label {
        id: title
        Accessible.role: Accessible.Heading
        anchors.left: parent.left
        anchors.leftMargin: Space.contentLeft
        anchors.top: parent.top
        anchors.topMargin: Space.m
        font.letterSpacing: Type.titleTracking
        font.pixelSize: Type.title
        height: Type.grow(Space.xl)
        strong: true
        text: root.title
        width: Math.min(parent.width - actions.width - Space.xxl - Space.m, root.titleRoom)
    }
    Label {
        anchors.left: title.left
        anchors.right: actions.left
        anchors.rightMargin: Space.m
        anchors.top: title.bottom
        anchors.topMargin: -Space.xxs
        color: root.stateInk
        font.pixelSize: Type.control
        height: Type.bodyLine
        text: root.stateText
    }
    Row {
        id: actions
        anchors.right: parent.right
        anchors.rightMargin: Space.contentEdge - Space.symbolOverhang
        anchors.top: parent.top
        anchors.topMargin: Space.l
        spacing: Space.xs
    }
    Item {
        id: body
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Space.listEnd
        anchors.left: parent.left
        anchors.leftMargin: Space.contentLeft
        anchors.right: parent.right
        anchors.rightMargin: Space.contentEdge
        anchors.top: parent.top
        anchors.topMargin: Space.header
    }
}
