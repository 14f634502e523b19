import QtQuick
import Velm.App
import Velm.Controls
import Velm.Island
import Velm.Theme

// The open island: the rail, the current section or the settings over it, and what can be undone.
FocusScope {
    id: root

    property bool isOpen: false
    property bool isSettled: false // nothing of the island moves
    readonly property int arrival: isSettled ? Motion.sectionOut : Motion.contentDelay + Motion.contentStep
    readonly property color accent: IslandController.showSettings ? Ink.text
                                                                  : Ink.tint(VelmTabs.accent(IslandController.tab))

    focus: true
    height: Space.panelHeight
    width: Space.panelWidth

    PointHandler {
        onActiveChanged: {
            if (active)
                IslandController.pressedInside()
        }
    }
    Repeater {
        model: VelmTabs.all

        SectionSlot {
            required property int modelData

            // qmllint disable unqualified
            anchors.fill: parent
            anchors.leftMargin: Space.rail
            delay: root.arrival
            enter: root.isSettled ? Motion.sectionIn : Motion.contentIn
            isShown: root.isOpen && !IslandController.showSettings && IslandController.tab === modelData
            leave: root.isOpen ? Motion.sectionOut : Motion.contentOut
            sourceComponent: modelData === VelmTab.Clipboard ? clipboard : coming
            tab: modelData
            // qmllint enable unqualified
        }
    }
    SectionSlot {
        anchors.fill: parent
        anchors.leftMargin: Space.rail
        delay: root.arrival
        enter: root.isSettled ? Motion.sectionIn : Motion.contentIn
        isShown: root.isOpen && IslandController.showSettings
        leave: root.isOpen ? Motion.sectionOut : Motion.contentOut
        sourceComponent: settings
    }
    Component {
        id: clipboard
        ClipboardPanel {}
    }
    Component {
        id: coming
        ComingPanel {}
    }
    Component {
        id: settings
        SettingsPanel {}
    }
    Reveal {
        delay: Motion.contentDelay
        height: parent.height
        isShown: root.isOpen
        width: Space.rail
        anchors.left: parent.left
        z: 1

        Rail {
            anchors.fill: parent
            isSettled: root.isSettled
        }
    }
    UndoToast {
        id: toast
        accent: root.accent
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Space.l
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.horizontalCenterOffset: Math.round(Space.rail / 2)
        duration: UndoOffer.duration
        isShown: root.isOpen && UndoOffer.isOffered
        text: UndoOffer.text
        z: 1
        onUndone: UndoOffer.undo()

        Connections {
            target: UndoOffer
            function onOffered() { toast.restart() }
        }
    }
}
