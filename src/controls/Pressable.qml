import QtQuick
import Velm.Theme

// What can be pressed: by the pointer, by Space or Return, by an assistive tool. The keyboard comes here by
// Tab only, never by a click, so the ring is seen only by those who move by keys.
Item {
    id: root

    property string label
    property string hint
    property int role: Accessible.Button
    property bool isCheckable: false
    property bool isChecked: false
    property real radius: Space.chip
    property bool isTabStop: true
    readonly property bool isHovered: hover.hovered
    readonly property bool isPressed: tap.pressed

    signal activated

    Accessible.checkable: root.isCheckable
    Accessible.checked: root.isChecked
    Accessible.description: root.hint
    Accessible.focusable: true
    Accessible.focused: root.activeFocus
    Accessible.name: root.label
    Accessible.role: root.role
    Accessible.onPressAction: root.activated()
    Accessible.onToggleAction: root.activated()

    activeFocusOnTab: root.isTabStop

    Keys.onSpacePressed: root.activated()
    Keys.onReturnPressed: event => event.accepted = root.pressedPlain(event)
    Keys.onEnterPressed: event => event.accepted = root.pressedPlain(event)

    function pressedPlain(event: var): bool {
        const plain = (event.modifiers & ~Qt.KeypadModifier) === Qt.NoModifier
        if (plain)
            root.activated()
        return plain
    }

    HoverHandler {
        id: hover
        enabled: root.enabled
    }
    TapHandler {
        id: tap
        enabled: root.enabled
        gesturePolicy: TapHandler.WithinBounds
        onTapped: root.activated()
    }
    FocusRing {
        around: root.radius
        visible: root.activeFocus
        z: 1
    }
}
