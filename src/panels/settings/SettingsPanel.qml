import QtQuick
import Velm.Controls
import Velm.Island
import Velm.Theme

// The settings, over the sections.
Section {
    id: root

    readonly property var pages: [sections, general, clipboard, about]

    stateText: qsTr("Velm 1.0")
    title: qsTr("Settings")

    actions: Button {
        label: qsTr("Close the settings")
        symbol: "xmark"
        onActivated: IslandController.closeSettings()
    }

    Segments {
        id: segments
        anchors.left: parent.left
        current: IslandController.settingsPage
        items: [qsTr("Sections"), qsTr("General"), qsTr("Clipboard"), qsTr("About")]
        onChosen: index => IslandController.settingsPage = index
    }
    Loader {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: segments.bottom
        anchors.topMargin: Space.m
        sourceComponent: root.pages[IslandController.settingsPage]
    }
    Component { id: sections; SectionsPage {} }
    Component { id: general; GeneralPage {} }
    Component { id: clipboard; ClipboardPage {} }
    Component { id: about; AboutPage {} }
}
