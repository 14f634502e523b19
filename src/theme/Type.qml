pragma Singleton
import QtQuick
import Velm.Theme

// Sizes in whole pixels; all of them, and the heights that follow them, grow with the desktop's own font.
QtObject {
    id: root

    readonly property real scale: Fonts.scale
    readonly property string mono: Fonts.fixedFamily
    readonly property string symbols: Fonts.symbolFamily

    readonly property int caption: grow(11)
    readonly property int control: grow(12)
    readonly property int body: grow(13)
    readonly property int lead: grow(15)
    readonly property int title: grow(17)
    readonly property int display: grow(22)
    readonly property int meter: grow(28)
    readonly property int numeral: grow(52)

    readonly property int captionLine: grow(16)
    readonly property int bodyLine: grow(18)

    // Tracking of large type, as parts of its size.
    readonly property real titleTracking: -0.2
    readonly property real numeralTracking: -0.025
    readonly property real colonRise: 0.06

    function grow(pixels: real): int {
        return Math.round(pixels * root.scale)
    }
}
