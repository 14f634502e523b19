import QtQuick
import Velm.Controls
import Velm.Island

// The place of one section: loaded when first shown, given the keyboard whenever shown.
Reveal {
    id: root

    property int tab: VelmTab.Files
    property alias sourceComponent: loader.sourceComponent

    onIsShownChanged: {
        if (root.isShown) {
            loader.active = true
            loader.forceActiveFocus()
        }
    }

    Loader {
        id: loader
        active: false
        anchors.fill: parent
    }
    Binding {
        property: "tab"
        target: loader.item
        value: root.tab
        when: (loader.item as ComingPanel) !== null
    }
    Binding {
        property: "isCurrent"
        target: loader.item
        value: root.isShown
        when: loader.item !== null
    }
    Binding {
        property: "isShown"
        target: loader.item
        value: root.visible
        when: loader.item !== null
    }
}
