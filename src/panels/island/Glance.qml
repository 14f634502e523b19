import QtQuick
import Velm.Theme

// The next useful thing, for the right side of the peek: a few words or a time, and a ring where it runs.
QtObject {
    property string text
    property real progress: -1 // none
    property color tint: Ink.text
}
