import Velm.Controls
import Velm.Panels
import Velm.Theme

ScrollPage {
    SettingsGroup {
        SettingsLine {
            isLast: true
            symbol: "sparkles"
            symbolInk: Ink.text
            text: qsTr("Velm 1.0")

            Button {
                text: qsTr("Reveal data folder")
                onActivated: ThisComputer.revealDataFolder()
            }
        }
    }
    SettingsGap {}
    SettingsGroup {
        HintLine { keys: qsTr("esc · click anywhere else"); text: qsTr("Close the island") }
        HintLine { keys: qsTr("Menu bar icon → Quit"); text: qsTr("Quit") }
        HintLine { keys: qsTr("Ctrl+1 … Ctrl+9 · Ctrl+Tab"); text: qsTr("Change the section") }
        HintLine { isLast: true; keys: qsTr("Return · Ctrl+Return · P · Delete · 1 … 9"); text: qsTr("Copy, paste, pin, delete, take a clip") }
    }
    SettingsGroup {
        heading: qsTr("Quick add syntax")

        HintLine { keys: qsTr("! · !! · !!!"); text: qsTr("Priority") }
        HintLine { keys: qsTr("today · tomorrow · friday"); text: qsTr("Due") }
        HintLine { isLast: true; keys: qsTr("#study · #work"); text: qsTr("List") }
    }
}
