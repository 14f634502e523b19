import QtQuick
import Velm.Controls
import Velm.Island
import Velm.Theme

// A section that has no panel of its own in this version.
Section {
    id: root

    property int tab: VelmTab.Files

    accent: Ink.tint(VelmTabs.accent(root.tab))
    stateText: VelmTabs.blurb(root.tab)
    title: VelmTabs.title(root.tab)

    Empty {
        accent: root.accent
        anchors.centerIn: parent
        symbol: VelmTabs.icon(root.tab)
        text: qsTr("This section is not part of this version")
        width: parent.width - 2 * Space.xxl
    }
}
