import QtQuick
import Velm.App
import Velm.Island
import Velm.Theme

// Which sections the rail has. The last one that is on stays on.
ScrollPage {
    id: root

    readonly property var shown: IslandController.visibleTabs
    readonly property bool isOneLeft: shown.length === 1

    SettingsGroup {
        heading: qsTr("Turn off anything you don't use and it disappears from the rail. Everything is on to begin with.")

        Repeater {
            model: VelmTabs.all

            SwitchLine {
                required property int index
                required property int modelData

                accent: Ink.tint(VelmTabs.accent(modelData))
                detail: VelmTabs.blurb(modelData)
                isLast: index === VelmTabs.all.length - 1
                isOn: root.shown.includes(modelData) // qmllint disable unqualified
                lock: isOn && root.isOneLeft ? qsTr("Keep at least one section") : "" // qmllint disable unqualified
                symbol: VelmTabs.icon(modelData)
                symbolInk: isOn ? accent : Ink.second
                text: VelmTabs.title(modelData)
                onSwitched: on => Settings.setEnabled(VelmTabs.rawValue(modelData), on)
            }
        }
    }
}
