import Velm.App
import Velm.Controls
import Velm.Panels
import Velm.Theme

ScrollPage {
    SettingsGroup {
        SwitchLine {
            detail: qsTr("Watch the pasteboard and keep what you copy")
            isOn: Settings.clipboardEnabled
            text: qsTr("Save clipboard history")
            onSwitched: on => Settings.clipboardEnabled = on
        }
        SwitchLine {
            isLast: true
            isOn: Settings.ignoreConcealed
            text: qsTr("Ignore clips marked confidential by password managers")
            onSwitched: on => Settings.ignoreConcealed = on
        }
    }
    SettingsGap {}
    SettingsGroup {
        SwitchLine {
            detail: qsTr("Offer the last clip on when its program has quit; never a confidential one")
            isOn: Settings.keepAfterQuit
            text: qsTr("Keep what you copied after its program quits")
            onSwitched: on => Settings.keepAfterQuit = on
        }
        SettingsLine {
            detail: qsTr("A larger one is not kept")
            isLast: true
            text: qsTr("Largest clip")

            Segments {
                readonly property var megabytes: [16, 64, 256]

                color: Ink.island
                current: megabytes.indexOf(Settings.clipSizeLimitMegabytes)
                items: megabytes.map(size => qsTr("%1 MB").arg(size))
                onChosen: index => Settings.clipSizeLimitMegabytes = megabytes[index]
            }
        }
    }
    SettingsGap {}
    SettingsGroup {
        SettingsLine {
            readonly property bool isGranted: ThisComputer.canPaste()

            detail: isGranted ? qsTr("Granted — Velm can paste into apps") : qsTr("Needed only for one-click paste")
            isLast: true
            symbol: isGranted ? "checkmark.circle.fill" : "hand.raised.fill"
            symbolInk: isGranted ? Ink.success : Ink.warning
            text: qsTr("Accessibility permission")
        }
    }
}
