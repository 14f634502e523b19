import QtQuick
import Velm.Theme

Rectangle {
    color: Ink.card
    radius: Space.card
}
