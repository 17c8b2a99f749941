import QtQuick 2.9

/// The colours that are the same in every theme.
Item {
    /// The frames round texts.
    readonly property color textFrame: "black"
    readonly property color debugBack: "white"
    readonly property color splitHandle: "white"
    /// What tool buttons lie on.
    readonly property color toolArea: "lightgray"
    readonly property color toolButton: "#00cf88"
    readonly property color disabledToolButton: "#808080"

    readonly property color menuButton1: "#fefefe"
    readonly property color menuButton2: "#e3e3e3"
    readonly property color pressedMenuButton1: "#aaa"
    readonly property color pressedMenuButton2: "#ccc"
    readonly property color menuButtonFrame: "#999"
    readonly property color menuButtonFocus: "#47b"
    readonly property color menuButtonGlow: "white"
    readonly property color menuButtonShadow: "#10000000"
    readonly property color menuButtonText: "black"

    readonly property color selectedRow: "#3399FF"
    readonly property color selectedRowText: "black"
    readonly property color renameBack: "white"
    readonly property color renameText: "black"
    readonly property color dropMarker: "black"
    readonly property color dropFolder: "red"
    readonly property color dropFolderFrame: "black"

    readonly property color currentEvent: "lime"
    readonly property color eventRow1: "white"
    readonly property color eventRow2: "lightgray"
}
