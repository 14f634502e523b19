import Velm.App
import Velm.Clipboard
import Velm.Controls

// Why no clip is shown, and the way out.
Empty {
    id: root

    property bool isOff: false
    readonly property bool isNarrowed: ClipboardManager.totalCount > 0

    signal allWanted

    action: isNarrowed ? (ClipboardManager.search !== "" ? qsTr("Clear the search") : qsTr("Show all clips"))
        : isOff ? qsTr("Save clipboard history") : ClipboardManager.isPaused ? qsTr("Resume") : ""
    symbol: isNarrowed ? "magnifyingglass" : "doc.on.clipboard.fill"
    text: isNarrowed ? (ClipboardManager.search !== "" ? qsTr("Nothing found for “%1”").arg(ClipboardManager.search)
                                                       : qsTr("No clip of this kind yet"))
        : isOff ? qsTr("The clipboard history is off")
        : ClipboardManager.isPaused ? qsTr("Paused: what you copy now is not kept") : qsTr("What you copy shows up here")

    onActivated: {
        if (root.isNarrowed)
            root.allWanted()
        else if (root.isOff)
            Settings.clipboardEnabled = true
        else
            ClipboardManager.togglePause()
    }
}
