pragma Singleton
import QtQuick

// Distances, sizes and radii. Heights of what holds words grow with the type; the rail and tiles do not.
QtObject {
    // Distances
    readonly property int hair: 1
    readonly property int xxs: 2
    readonly property int xs: 4
    readonly property int s: 8
    readonly property int m: 12
    readonly property int l: 16
    readonly property int xl: 24
    readonly property int xxl: 32

    // Radii
    readonly property int cap: 5
    readonly property int tileRadius: 7
    readonly property int chip: 8
    readonly property int row: 10
    readonly property int toastRadius: 12
    readonly property int card: 14
    readonly property int zone: 16
    readonly property int emptyRadius: 20

    // The island, by the state of its shape
    readonly property var corner: ({ idle: 10, pill: 22, peek: 22, catching: 26, expanded: 28 })
    readonly property var shoulder: ({ idle: 6, pill: 10, peek: 10, catching: 12, expanded: 12 })
    readonly property int windowWidth: 800
    readonly property int windowHeight: 500
    readonly property int closedTallest: 200 // no closed island reaches it, no open one is below
    readonly property size glow: Qt.size(190, 72)
    readonly property int pillInset: 17
    readonly property int pillEnd: 20
    readonly property int pillTile: 36
    readonly property int pillTileRadius: 11
    readonly property int peekInset: 22
    readonly property real ringLine: 3.5
    readonly property real ringLineLow: 2.5

    // The panel's frame
    readonly property int panelWidth: 660
    readonly property int panelHeight: 430
    readonly property int rail: 56
    readonly property int railTile: 28
    readonly property int railStep: 32
    readonly property int railInset: 14
    readonly property int header: Type.grow(60)
    readonly property int railSettings: 44 // from the panel's end
    readonly property int housingStart: 235 // titles end here below a camera housing
    readonly property int contentLeft: 12 // from the rail
    readonly property int contentEdge: 16 // to the panel's right and bottom edges
    readonly property int symbolOverhang: 5 // from a symbol's box to its glyph
    readonly property int listEnd: 4 // lists end this far above the panel's edge

    // Symbols
    readonly property int markSize: 14
    readonly property int symbolSmall: 16
    readonly property int symbol: 18
    readonly property int symbolLarge: 22
    readonly property int symbolEmpty: 32

    // Controls
    readonly property int control: Type.grow(28)
    readonly property int segment: Type.grow(32)
    readonly property int symbolButton: 28
    readonly property int capSize: 20
    readonly property int switchWidth: 36
    readonly property int switchHeight: 20
    readonly property int tooltip: Type.grow(26)
    readonly property int toast: Type.grow(40)
    readonly property int toastWidth: 320
    readonly property int toastRing: 16
    readonly property int emptyTile: 64
    readonly property int emptyLine: Type.grow(52)
    readonly property int fade: 40
    readonly property int ring: 2 // of the focus
    readonly property int searchLeast: 120

    // Rows of a list of clips; columns are counted from the right
    readonly property int tile: 28
    readonly property int listRow: Type.grow(44)
    readonly property int rowGap: 2
    readonly property int rowText: 48
    readonly property int rowAge: 36
    readonly property int rowDot: 92
    readonly property int rowActions: 98
    readonly property int dot: 6

    // Settings
    readonly property int line: Type.grow(40)
    readonly property int lineWithDetail: Type.grow(52)
}
