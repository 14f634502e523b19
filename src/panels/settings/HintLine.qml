import QtQuick
import Velm.Controls
import Velm.Theme

// What to press for something: the keys between the middle dots, each as a cap.
SettingsLine {
    id: root

    property string keys

    Accessible.name: root.text + ": " + root.keys
    Accessible.role: Accessible.StaticText

    Repeater {
        model: root.keys.split(" · ")

        KeyCap {
            required property string modelData

            anchors.verticalCenter: parent ? parent.verticalCenter : undefined
            color: Ink.well
            text: modelData
        }
    }
}
