import QtQuick
import Velm.Theme

// A field to search by. `isTyping` shows the caret: a field that has the keyboard only to catch the first
// letter looks at rest.
Rectangle {
    id: root

    property alias text: input.text
    property alias input: input
    property string placeholder
    property bool isTyping: false
    property color accent: Ink.text

    signal clicked
    signal edited
    signal keyPressed(var event) // before the field itself takes it

    color: Ink.card
    implicitHeight: Space.control
    radius: Space.chip

    Symbol {
        id: glass
        anchors.left: parent.left
        anchors.leftMargin: Space.s
        anchors.verticalCenter: parent.verticalCenter
        color: Ink.second
        name: "magnifyingglass"
    }
    Label {
        anchors.fill: input
        dim: true
        font.pixelSize: Type.control
        text: root.placeholder
        visible: input.text === "" && input.preeditText === ""
    }
    TextInput {
        id: input

        Accessible.name: root.placeholder
        Accessible.role: Accessible.EditableText
        Accessible.searchEdit: true
        activeFocusOnTab: true
        anchors.bottom: parent.bottom
        anchors.left: glass.right
        anchors.leftMargin: Space.s - Space.xxs
        anchors.right: clear.visible ? clear.left : parent.right
        anchors.rightMargin: Space.s
        anchors.top: parent.top
        clip: true
        color: Ink.text
        cursorVisible: activeFocus && root.isTyping
        font.pixelSize: Type.control
        horizontalAlignment: TextInput.AlignLeft
        selectByMouse: true
        selectedTextColor: Ink.text
        selectionColor: Ink.veil(root.accent, 0.4)
        verticalAlignment: TextInput.AlignVCenter

        Keys.onPressed: event => root.keyPressed(event)
        onTextEdited: {
            root.isTyping = true
            root.edited()
        }

        cursorDelegate: Rectangle {
            color: root.accent // qmllint disable unqualified
            visible: input.cursorVisible // qmllint disable unqualified
            width: Space.xxs
        }
    }
    TapHandler {
        onTapped: {
            input.forceActiveFocus(Qt.MouseFocusReason)
            root.clicked()
        }
    }
    Button {
        id: clear
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        implicitHeight: root.height
        isTabStop: false
        label: qsTr("Clear the search")
        symbol: "xmark.circle.fill"
        visible: input.text !== ""
        onActivated: {
            input.clear()
            root.edited()
        }
    }
    Rectangle {
        anchors.fill: parent
        border.color: Ink.veil(root.accent, 0.7)
        border.width: Space.hair
        color: "transparent"
        radius: root.radius
        visible: input.activeFocus && root.isTyping
    }
}
