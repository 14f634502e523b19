import QtQuick
import Velm.Theme

// Content that comes after its island has grown and is gone before it shrinks. While it is away it is hidden,
// not transparent, so the shape moves alone.
Item {
    id: root

    property bool isShown: false
    property int delay: 0
    property int enter: Motion.contentIn
    property int leave: Motion.contentOut
    property real rise: Motion.rise

    opacity: 0
    visible: false

    states: State {
        name: "shown"
        when: root.isShown
        PropertyChanges { target: root; opacity: 1; visible: true }
    }
    transitions: [
        Transition {
            to: "shown"
            SequentialAnimation {
                PropertyAction { target: root; property: "visible"; value: false }
                PauseAnimation { duration: root.delay }
                PropertyAction { target: root; property: "visible"; value: true }
                ParallelAnimation {
                    NumberAnimation { target: root; property: "opacity"; duration: root.enter }
                    NumberAnimation { target: slide; property: "y"; from: root.rise; to: 0; duration: root.enter; easing.type: Easing.OutCubic }
                }
            }
        },
        Transition {
            from: "shown"
            SequentialAnimation {
                NumberAnimation { target: root; property: "opacity"; duration: root.leave }
                PropertyAction { target: root; property: "visible" }
            }
        }
    ]
    transform: Translate { id: slide }
}
