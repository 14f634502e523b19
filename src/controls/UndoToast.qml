import QtQuick
import Velm.Theme

// What has just been taken away, and five seconds to have it back: a ring runs them down.
Rectangle {
    id: root

    property string text
    property bool isShown: false
    property int duration: 5000
    property color accent: Ink.text
    property string symbol: "trash"
    property bool shows: false // until it has faded out

    signal undone

    Accessible.name: text
    Accessible.role: Accessible.AlertMessage
    color: Ink.track
    height: Space.toast
    opacity: isShown ? 1 : 0
    radius: Space.toastRadius
    visible: opacity > 0
    width: Math.max(Space.toastWidth, Math.min(parent.width - 2 * Space.l, words.x + words.implicitWidth + Space.l + end.width))

    function restart() {
        if (root.isShown)
            running.restart()
        else
            running.stop()
    }

    onIsShownChanged: root.restart()
    onTextChanged: root.restart()

    Behavior on opacity {
        NumberAnimation { duration: Motion.words }
    }
    NumberAnimation {
        id: running
        duration: Motion.still ? 0 : root.duration
        from: Motion.still ? 0.7 : 1
        property: "value"
        target: ring
        to: Motion.still ? 0.7 : 0
    }
    Symbol {
        id: sign
        anchors.left: parent.left
        anchors.leftMargin: Space.m
        anchors.verticalCenter: parent.verticalCenter
        color: Ink.second
        name: root.symbol
    }
    Label {
        id: words
        anchors.left: sign.right
        anchors.leftMargin: Space.row
        anchors.right: end.left
        anchors.rightMargin: Space.m
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: Type.control
        text: root.text
    }
    Row {
        id: end
        anchors.right: parent.right
        anchors.rightMargin: Space.xs
        anchors.verticalCenter: parent.verticalCenter
        spacing: Space.s

        Ring {
            id: ring
            anchors.verticalCenter: parent.verticalCenter
            color: Ink.second
            height: width
            line: Space.xxs
            width: Space.toastRing
        }
        Pressable {
            height: Space.control
            label: qsTr("Undo")
            width: undo.implicitWidth + 2 * Space.m
            onActivated: root.undone()

            Label {
                id: undo
                Accessible.ignored: true
                anchors.centerIn: parent
                color: root.accent
                strong: true
                text: parent.label
            }
        }
    }
}
