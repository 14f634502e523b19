pragma Singleton
import QtQuick

// Every colour there is. Text is white, second or an accent; fills are the few greys and the washes.
QtObject {
    id: root

    readonly property color island: "#000000"
    readonly property color card: "#131316"
    readonly property color raised: "#212126"
    readonly property color well: "#323239" // a tile on a raised row
    readonly property color track: "#2E2E34" // bar tracks, thumbs, toasts and tooltips
    readonly property color off: "#3A3A42"
    readonly property color mute: "#5E5E68"
    readonly property color hover: Qt.rgba(1, 1, 1, 0.06)
    readonly property color hairline: Qt.rgba(1, 1, 1, 0.10)
    readonly property color edge: Qt.rgba(1, 1, 1, 0.14)

    readonly property color text: "#F5F5F7"
    readonly property color second: "#A8A8B3"
    readonly property color third: "#7C7C88" // outlines only
    readonly property color onAccent: "#0B0B0D"

    readonly property color success: "#34D17B"
    readonly property color warning: "#FFB340"
    readonly property color danger: "#FF5F57"

    // By the raw value of the section; the settings have no colour of their own.
    readonly property var accents: ({
        files: "#5B8CFF",
        clipboard: "#3BD68A",
        shelf: "#FFB340",
        notes: "#FFD54A",
        timer: "#FF6B5E",
        todo: "#B47CFF",
        system: "#35C6E8",
        media: "#FF5CA8",
        devices: "#64D2FF",
        shots: "#FF8F6B",
        network: "#4CD9A6",
        settings: "#F5F5F7"
    })

    // In the order of the C++ enumeration of tints: the four states, then the sections.
    readonly property var tints: [root.text, root.success, root.warning, root.danger,
        ...Object.keys(root.accents).map(name => root.accents[name])]

    function accent(section: string): color {
        return root.accents[section] ?? root.text
    }

    function tint(value: int): color {
        return root.tints[value] ?? root.text
    }

    // The colour as a fill that says "chosen".
    function wash(base: color): color {
        return root.veil(base, 0.18)
    }

    function veil(base: color, strength: real): color {
        return Qt.rgba(base.r, base.g, base.b, strength)
    }
}
