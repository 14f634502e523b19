pragma Singleton
import QtQuick

// Durations in milliseconds and curves. With `reduced` every change is one short fade; with `still`, for
// pictures, there is no motion at all.
QtObject {
    id: root

    property bool reduced: false
    property bool still: false

    readonly property int open: moved(266) // the shape; its content has come by 380
    readonly property int close: moved(208)
    readonly property int peek: moved(180)
    readonly property int tab: moved(160)
    readonly property int row: moved(200)
    readonly property int drag: moved(120)
    readonly property int press: moved(120)

    // Content waits until the shape is mostly there, and leaves before it shrinks.
    readonly property int contentDelay: moved(170)
    readonly property int contentStep: moved(30)
    readonly property int contentIn: faded(150)
    readonly property int contentOut: faded(90)
    readonly property int closeDelay: moved(52)
    readonly property int wordsDelay: moved(90)
    readonly property int wordsIn: faded(90)
    readonly property int sectionOut: faded(60)
    readonly property int sectionIn: faded(100)
    readonly property int words: faded(120)
    readonly property int rise: root.reduced || root.still ? 0 : 8 // how far below its place content begins

    readonly property int noticed: root.still ? 0 : 900 // how long a "done" mark stays
    readonly property int glowIn: faded(1600)
    readonly property int glowOut: faded(400)
    readonly property int glowWalk: 9000
    readonly property int glowRest: 3000

    readonly property int curve: Easing.OutBack // without overshoot it is a cubic: one family for the body
    readonly property real overshoot: 0.55 // 1 % of the way, 4 px of a whole panel

    function moved(duration: int): int {
        return root.still || root.reduced ? 0 : duration
    }

    function faded(duration: int): int {
        return root.still ? 0 : root.reduced ? 120 : duration
    }
}
