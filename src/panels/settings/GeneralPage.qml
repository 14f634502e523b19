import Velm.App
import Velm.Panels

ScrollPage {
    SettingsGroup {
        SwitchLine {
            isOn: Settings.openOnHover
            text: qsTr("Expand when the pointer reaches the notch")
            onSwitched: on => Settings.openOnHover = on
        }
        SwitchLine {
            isOn: Settings.showPeek
            text: qsTr("Show a small peek first")
            onSwitched: on => Settings.showPeek = on
        }
        SwitchLine {
            isLast: true
            isOn: Settings.launchAtLogin
            text: qsTr("Start Velm automatically")
            onSwitched: on => Settings.launchAtLogin = on
        }
    }
    SettingsGroup {
        heading: qsTr("When you're away")

        SwitchLine {
            detail: qsTr("Trace a slow glow across the notch once your Mac is idle")
            isOn: Settings.ambientIdle
            text: qsTr("Ambient animation")
            onSwitched: on => Settings.ambientIdle = on
        }
        SwitchLine {
            detail: qsTr("Stay quiet while something is playing on screen")
            isLast: true
            isOn: Settings.ambientOnlyWhenFree
            text: qsTr("Only when nothing is running")
            onSwitched: on => Settings.ambientOnlyWhenFree = on
        }
    }
    SettingsGap {}
    SettingsGroup {
        SwitchLine {
            detail: qsTr("Open a drop zone as soon as you drag a file")
            isOn: Settings.dropCatcher
            text: qsTr("Catch dropped files")
            onSwitched: on => Settings.dropCatcher = on
        }
        SwitchLine {
            isLast: !ThisComputer.hasHaptics
            isOn: Settings.playSounds
            text: qsTr("Play a sound on copy, complete and undo")
            onSwitched: on => Settings.playSounds = on
        }
        SwitchLine {
            isLast: true
            isOn: Settings.hapticFeedback
            text: qsTr("Tap the trackpad on key actions")
            visible: ThisComputer.hasHaptics
            onSwitched: on => Settings.hapticFeedback = on
        }
    }
}
