import QtQuick
import Velm.Controls

// A preference that is on or off; the whole line can be pressed.
SettingsLine {
    id: root

    property alias isOn: toggle.isChecked
    property alias accent: toggle.accent
    property alias lock: toggle.lock

    signal switched(bool on)

    TapHandler {
        gesturePolicy: TapHandler.WithinBounds
        onTapped: toggle.activated()
    }
    Toggle {
        id: toggle
        hint: lock !== "" ? lock : root.detail
        label: root.text
        onActivated: {
            if (!isLocked)
                root.switched(!isChecked)
        }
    }
}
