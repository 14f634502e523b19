import QtQuick
import Velm.Theme

Item {
    height: Space.m
    width: Space.m
}
