import QtQuick
import Velm.Island
import Velm.Theme

// The sections as symbols; one solid tile says where you are and glides there.
Item {
    id: root

    property bool isSettled: false
    readonly property var tabs: IslandController.visibleTabs
    readonly property int current: tabs.indexOf(IslandController.tab)
    readonly property bool isInSettings: IslandController.showSettings
    readonly property real settingsY: height - Space.railSettings

    Accessible.name: qsTr("Sections")
    Accessible.role: Accessible.PageTabList

    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: Space.railInset
        color: root.isInSettings ? Ink.accent("settings") : Ink.tint(VelmTabs.accent(IslandController.tab))
        height: width
        radius: Space.chip
        visible: root.isInSettings || root.current >= 0
        width: Space.railTile
        y: root.isInSettings ? root.settingsY : Space.railInset + root.current * Space.railStep

        Behavior on y {
            enabled: root.isSettled
            NumberAnimation { duration: Motion.tab; easing.type: Easing.OutCubic }
        }
        Behavior on color {
            enabled: root.isSettled
            ColorAnimation { duration: Motion.tab }
        }
    }
    Repeater {
        model: root.tabs

        RailTile {
            required property int index
            required property int modelData

            anchors.left: parent.left
            anchors.leftMargin: Space.railInset
            hint: index < 9 ? qsTr("Ctrl+%1").arg(index + 1) : ""
            isChecked: !IslandController.showSettings && IslandController.tab === modelData
            label: VelmTabs.title(modelData)
            symbol: VelmTabs.icon(modelData)
            y: Space.railInset + index * Space.railStep
            onActivated: {
                IslandController.closeSettings()
                IslandController.select(modelData)
            }
        }
    }
    RailTile {
        anchors.left: parent.left
        anchors.leftMargin: Space.railInset
        hint: qsTr("Ctrl+,")
        isChecked: root.isInSettings
        label: qsTr("Settings")
        symbol: "gearshape.fill"
        y: root.settingsY
        onActivated: IslandController.openSettings(IslandController.settingsPage)
    }
}
