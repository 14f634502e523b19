import QtQuick
import Velm.Controls
import Velm.Theme

// A page that scrolls where it is longer than the panel, and follows the keyboard.
Item {
    id: root

    default property alias content: column.data

    function follow(item: Item) {
        if (!item || !page.contains(item))
            return
        const top = item.mapToItem(column, 0, 0).y - Space.xl
        const bottom = top + item.height + 2 * Space.xl
        if (top < page.contentY)
            page.contentY = Math.max(0, top)
        else if (bottom > page.contentY + page.height - Space.fade)
            page.contentY = Math.min(page.contentHeight - page.height, bottom - page.height + Space.fade)
    }

    Connections {
        target: root.Window.window
        function onActiveFocusItemChanged() { root.follow(root.Window.activeFocusItem) }
    }
    Flickable {
        id: page

        function contains(item: Item): bool {
            for (let above = item; above; above = above.parent) {
                if (above === column)
                    return true
            }
            return false
        }

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: column.height + Space.m
        contentWidth: width

        Column {
            id: column
            width: page.width
        }
    }
    Fade {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        visible: page.contentHeight > page.height && !page.atYEnd
    }
}
