import QtQuick 2.9
import QtQuick.Controls 1.4 as Toolkit
import QtQuick.Window 2.2
import Morvi.kess 1.0
import "../Singletons"
import "looks"
import "toolkit.js" as Internals

/// A number field. Its wheel works only while it has the focus, an arrow's
/// click finishes the edit, and the input method is off while it has the focus.
Toolkit.SpinBox {
    id: root

    /// Arrows side by side; decided at completion.
    property bool horizontal: true
    property real lastValue: 0
    /// What the number is, for who can't see its label.
    property string accessibleName: ""
    property bool completed: false
    /// False where the toolkit can't lay the arrows side by side.
    property bool arrowsMovable: true
    /// The window whose input method this control holds off, or null. One that was
    /// not made in QML is no Window to QML.
    property var inputMethodWindow: null
    readonly property bool windowVisible: Window.window ? Window.window.visible : false
    readonly property Item panel: root.__panel

    // Each request to turn it off is taken back exactly once and at the same
    // window, however focus and visibility change together.
    function setInputMethodOff(off) {
        if (off === (inputMethodWindow !== null))
            return;
        var window = off ? root.Window.window : inputMethodWindow;
        inputMethodWindow = off ? window : null;
        Gui.setIme(window, !off);
    }

    function layArrows() {
        if (!horizontal || !arrowsMovable)
            return;
        arrowsMovable = Internals.layArrowsSideBySide(root);
        if (!arrowsMovable)
            console.warn("SpinBox: no arrow rectangles in this toolkit, the arrows stay above each other");
    }

    Accessible.name: accessibleName

    width: 80
    style: {
        if (horizontal && arrowsMovable)
            return Theme.toolkitSurfaces ? sideBySideLook : themedSideBySideLook;
        return Theme.toolkitSurfaces ? stackedLook : themedStackedLook;
    }

    onActiveFocusChanged: setInputMethodOff(activeFocus)
    onValueChanged: {
        if (!completed)
            return;
        var step = Math.abs(value - lastValue);
        lastValue = value;
        if (step === stepSize)
            editingFinished();
    }

    onWindowVisibleChanged: {
        if (!activeFocus)
            return;
        console.log("SpinBox: the window became " + (windowVisible ? "visible" : "hidden"));
        setInputMethodOff(windowVisible);
    }
    // A new style brings a new panel.
    onPanelChanged: {
        if (completed)
            layArrows();
    }

    Component.onCompleted: {
        lastValue = value;
        completed = true;
        layArrows();
        if (horizontal)
            Internals.wheelOnlyWithFocus(root, "SpinBox", Internals.isSpinBoxWheelArea);
    }
    Component.onDestruction: setInputMethodOff(false)

    Component {
        id: stackedLook

        SpinBoxLook {}
    }

    Component {
        id: themedStackedLook

        SpinBoxThemedStackedLook {}
    }

    Component {
        id: sideBySideLook

        SpinBoxSideBySideLook {}
    }

    Component {
        id: themedSideBySideLook

        SpinBoxThemedSideBySideLook {}
    }
}
