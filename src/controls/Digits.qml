import QtQuick
import Velm.Theme

// Numbers that change, each digit in a cell as wide as "0", so that nothing shifts in any font. Their order
// is the same in every language.
Item {
    id: root

    property string text
    property int size: Type.numeral
    property int weight: Font.DemiBold
    property color color: Ink.text
    property real tracking: size * Type.numeralTracking
    property bool isFlush: false // at a left edge the first digit has its own width, so that it stands on it
    readonly property real cell: Math.ceil(zero.advanceWidth * 2) / 2

    Accessible.name: root.text
    Accessible.role: Accessible.StaticText
    implicitHeight: row.height
    implicitWidth: row.width

    TextMetrics {
        id: zero
        font.pixelSize: root.size
        font.weight: root.weight
        text: "0"
    }
    Row {
        id: row
        LayoutMirroring.childrenInherit: true
        LayoutMirroring.enabled: false

        Repeater {
            model: root.text.length

            Text {
                // qmllint disable unqualified
                required property int index
                readonly property string sign: root.text[index] ?? ""
                readonly property bool isInCell: sign >= "0" && sign <= "9" && !(root.isFlush && index === 0)

                Accessible.ignored: true
                color: root.color
                font.pixelSize: root.size
                font.weight: root.weight
                horizontalAlignment: Text.AlignHCenter
                text: sign
                textFormat: Text.PlainText
                width: (isInCell ? root.cell : implicitWidth) + root.tracking
                y: sign === ":" ? -root.size * Type.colonRise : 0
                // qmllint enable unqualified
            }
        }
    }
}
