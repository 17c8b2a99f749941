pragma Singleton
import QtQuick 2.9

/// The fonts, sizes and colours of all screens. A screen names a role here and
/// never a font or a colour of its own.
FixedColours {
    id: theme

    readonly property int fontSize: 14
    readonly property int labelFontSize: 13
    readonly property int controlHeight: 27
    readonly property int margin: 4
    readonly property int executionCommandSettingWidth: 480
    readonly property int linkConditionSettingWidth: 480
    readonly property int autoTileSettingWidth: 480

    readonly property string fixedFont: fixedFontLoader.name
    readonly property string normalFont: normalFontLoader.name
    readonly property string mediumFont: mediumFontLoader.name
    readonly property string heavyFont: heavyFontLoader.name
    readonly property string symbolFontName: symbolFontLoader.name
    /// Where the loaded files make up one family, as newer releases of the
    /// fonts do, only the weight tells the medium one from the normal one.
    readonly property int mediumWeight: mediumFont === normalFont ? Font.Medium : Font.Normal

    /// The toolkit draws its buttons and fields on light surfaces. Where they
    /// don't go with the theme's texts this is false, and the controls draw
    /// the surfaces from the tokens below.
    property bool toolkitSurfaces: true

    property color window1: "#000000"
    property color window2: "#000000"
    property color outsideArea: "#000000"
    property color inactiveTab1: "#000000"
    property color inactiveTab2: "#000000"
    property color controlFrame: "#000000"
    property color toolBar1: "#000000"
    property color toolBar2: "#000000"
    property color scrollBar1: "#000000"
    property color scrollBar2: "#000000"
    property color focusFrame: "#000000"
    property color normalText: "#000000"
    property color normalBack1: "#000000"
    property color normalBack2: "#000000"
    property color selectedText: "#000000"
    property color selectedBack: "#000000"
    property color selectedEdText: "#000000"
    property color selectedEdBack: "#000000"
    property color disabledText: "#000000"
    property real disabledOpacity: 1
    property color hyperLinkText: "#000000"
    property color button1: "#000000"
    property color button2: "#000000"
    property color buttonFrame: "#000000"
    property color pressedButton1: "#000000"
    property color pressedButton2: "#000000"
    property color pressedButtonText: "#000000"
    property color hotButton1: "#000000"
    property color hotButton2: "#000000"
    property color hotButtonText: "#000000"
    property color twinklingBtn1: "#000000"
    property color twinklingBtn2: "#000000"
    property color groupBox1: "#000000"
    property color groupBox2: "#000000"
    property color groupBoxFrame: "#000000"
    property color deluxeLabel1: "#000000"
    property color deluxeLabel2: "#000000"
    property color deluxeLabelText: "#000000"
    property color highlight: "#000000"
    property color workArea: "#000000"
    property color checkMark: "#000000"
    property color dropTarget: "#000000"
    property color progressBar: "#000000"
    property color treeRowColor1: "#000000"
    property color treeRowColor2: "#000000"
    property string arrowLeftImage: ""
    property string arrowRightImage: ""
    property string arrowUpImage: ""
    property string arrowDownImage: ""
    property bool isDarkMode: false

    /// "dark", "highContrastWhite" or "highContrastBlack"; any other name
    /// selects the default theme.
    function setTheme(name) {
        if (name === "dark")
            setDarkTheme();
        else if (name === "highContrastWhite")
            setHighContrastWhiteTheme();
        else if (name === "highContrastBlack")
            setHighContrastBlackTheme();
        else
            setDefaultTheme();
    }

    function setDefaultTheme() {
        window2 = "#d0dbe8";
        window1 = Qt.lighter(window2, 1.1);
        outsideArea = Qt.darker(window2, 1.2);
        inactiveTab1 = Qt.darker(window2, 1.1);
        inactiveTab2 = Qt.darker(window2, 1.2);
        controlFrame = Qt.darker(window2, 1.7);
        toolBar1 = window1;
        toolBar2 = window2;
        scrollBar1 = Qt.darker(window2, 1.1);
        scrollBar2 = window2;
        focusFrame = "#648cb4";
        normalText = "#000000";
        normalBack1 = "#ffffff";
        normalBack2 = "#e4ecf2";
        selectedText = "#ffffff";
        selectedBack = "#0064c8";
        selectedEdText = normalText;
        selectedEdBack = "#bbddff";
        disabledText = "#80000000";
        disabledOpacity = 0.5;
        hyperLinkText = "#0000ff";
        button1 = "#eef6fc";
        button2 = "#aeb6bc";
        buttonFrame = controlFrame;
        pressedButton1 = button2;
        pressedButton2 = button1;
        pressedButtonText = normalText;
        hotButton1 = "#ffffff";
        hotButton2 = "#c0e0ff";
        hotButtonText = normalText;
        twinklingBtn1 = Qt.lighter("#38d", 1.8);
        twinklingBtn2 = Qt.lighter("#38d", 1.5);
        groupBox1 = "#6090b0d0";
        groupBox2 = "#607090b0";
        groupBoxFrame = "#ffffff";
        deluxeLabel1 = "#0050a0";
        deluxeLabel2 = Qt.lighter(deluxeLabel1, 1.2);
        deluxeLabelText = "#ffffff";
        highlight = "#80ffffff";
        workArea = "#224488";
        checkMark = "#4466aa";
        dropTarget = "#ffee60";
        progressBar = "#4499dd";
        treeRowColor1 = "#E9E9E9";
        treeRowColor2 = "lightgray";
        arrowLeftImage = "arrow-left.png";
        arrowRightImage = "arrow-right.png";
        arrowUpImage = "arrow-up.png";
        arrowDownImage = "arrow-down.png";
        isDarkMode = false;
        toolkitSurfaces = true;
    }

    function setDarkTheme() {
        window1 = "#474b4d";
        window2 = "#2f3335";
        outsideArea = "#181819";
        inactiveTab1 = "#373b3d";
        inactiveTab2 = "#1f2325";
        controlFrame = "#111618";
        toolBar1 = window1;
        toolBar2 = window2;
        scrollBar1 = "#515658";
        scrollBar2 = "#616668";
        focusFrame = "#4e78a1";
        normalText = "#cccccc";
        normalBack1 = "#25282a";
        normalBack2 = "#2c2f31";
        selectedText = "#cccccc";
        selectedBack = "#4b6eaf";
        selectedEdText = normalText;
        selectedEdBack = "#4b6eaf";
        disabledText = "#777777";
        disabledOpacity = 0.5;
        hyperLinkText = "#0099ff";
        button1 = "#616668";
        button2 = "#54595b";
        buttonFrame = controlFrame;
        pressedButton1 = button2;
        pressedButton2 = button1;
        pressedButtonText = normalText;
        hotButton1 = "#717678";
        hotButton2 = "#64696b";
        hotButtonText = normalText;
        twinklingBtn1 = "#173e70";
        twinklingBtn2 = "#082147";
        groupBox1 = "#18ffffff";
        groupBox2 = "#10ffffff";
        groupBoxFrame = "#202020";
        deluxeLabel1 = "#272b2d";
        deluxeLabel2 = "#0f1315";
        deluxeLabelText = "#dddddd";
        highlight = "#80515557";
        workArea = "#224488";
        checkMark = "#aaaaaa";
        dropTarget = "#456ea6";
        progressBar = "#4499dd";
        treeRowColor1 = "#E9E9E9";
        treeRowColor2 = "lightgray";
        arrowLeftImage = "arrow-left-white.png";
        arrowRightImage = "arrow-right-white.png";
        arrowUpImage = "arrow-up-white.png";
        arrowDownImage = "arrow-down-white.png";
        isDarkMode = true;
        toolkitSurfaces = false;
    }

    function setHighContrastBlackTheme() {
        window1 = "#000000";
        window2 = "#000000";
        outsideArea = "#000000";
        inactiveTab1 = "#000000";
        inactiveTab2 = "#000000";
        controlFrame = "#ffffff";
        toolBar1 = window1;
        toolBar2 = window2;
        scrollBar1 = "#000000";
        scrollBar2 = "#000000";
        focusFrame = "#ffff00";
        normalText = "#ffffff";
        normalBack1 = "#000000";
        normalBack2 = "#000000";
        selectedText = "#000000";
        selectedBack = "#1AEBFF";
        selectedEdText = "#000000";
        selectedEdBack = "#1AEBFF";
        disabledText = "#00FF00";
        disabledOpacity = 1;
        hyperLinkText = "#00ffff";
        button1 = "#000000";
        button2 = "#000000";
        buttonFrame = controlFrame;
        pressedButton1 = button2;
        pressedButton2 = button1;
        pressedButtonText = "#000000";
        hotButton1 = "#1AEBFF";
        hotButton2 = "#1AEBFF";
        hotButtonText = "#000000";
        twinklingBtn1 = "#1AEBFF";
        twinklingBtn2 = "#1AEBFF";
        groupBox1 = "#000000";
        groupBox2 = "#000000";
        groupBoxFrame = "#ffffff";
        deluxeLabel1 = "#000000";
        deluxeLabel2 = "#000000";
        deluxeLabelText = "#ffffff";
        highlight = "#80ffffff";
        workArea = "#224488";
        checkMark = "#FFFFFF";
        dropTarget = "#1AEBFF";
        progressBar = "#1AEBFF";
        treeRowColor1 = "#E9E9E9";
        treeRowColor2 = "lightgray";
        arrowLeftImage = "arrow-left-white.png";
        arrowRightImage = "arrow-right-white.png";
        arrowUpImage = "arrow-up-white.png";
        arrowDownImage = "arrow-down-white.png";
        isDarkMode = true;
        toolkitSurfaces = false;
    }

    function setHighContrastWhiteTheme() {
        window1 = "#FFFFFF";
        window2 = "#FFFFFF";
        outsideArea = "#FFFFFF";
        inactiveTab1 = "#FFFFFF";
        inactiveTab2 = "#FFFFFF";
        controlFrame = "#000000";
        toolBar1 = window1;
        toolBar2 = window2;
        scrollBar1 = "#FFFFFF";
        scrollBar2 = "#FFFFFF";
        focusFrame = "#00009F";
        normalText = "#000000";
        normalBack1 = "#FFFFFF";
        normalBack2 = "#FFFFFF";
        selectedText = "#FFFFFF";
        selectedBack = "#37006E";
        selectedEdText = "#FFFFFF";
        selectedEdBack = "#37006E";
        disabledText = "#800000";
        disabledOpacity = 1;
        hyperLinkText = "#0000ff";
        button1 = "#FFFFFF";
        button2 = "#FFFFFF";
        buttonFrame = controlFrame;
        pressedButton1 = button2;
        pressedButton2 = button1;
        pressedButtonText = "#FFFFFF";
        hotButton1 = "#37006E";
        hotButton2 = "#37006E";
        hotButtonText = "#FFFFFF";
        twinklingBtn1 = "#37006E";
        twinklingBtn2 = "#37006E";
        groupBox1 = "#FFFFFF";
        groupBox2 = "#FFFFFF";
        groupBoxFrame = "#000000";
        deluxeLabel1 = "#FFFFFF";
        deluxeLabel2 = "#FFFFFF";
        deluxeLabelText = "#000000";
        highlight = "#80000000";
        workArea = "#224488";
        checkMark = "#000000";
        dropTarget = "#37006E";
        progressBar = "#37006E";
        treeRowColor1 = "#E9E9E9";
        treeRowColor2 = "lightgray";
        arrowLeftImage = "arrow-left.png";
        arrowRightImage = "arrow-right.png";
        arrowUpImage = "arrow-up.png";
        arrowDownImage = "arrow-down.png";
        isDarkMode = false;
        toolkitSurfaces = false;
    }

    Component.onCompleted: setDefaultTheme()

    FontLoader {
        id: fixedFontLoader
        source: "../Fonts/mplus-1m-regular.ttf"
    }
    FontLoader {
        id: normalFontLoader
        source: "../Fonts/mplus-1c-regular.ttf"
    }
    FontLoader {
        id: mediumFontLoader
        source: "../Fonts/mplus-1p-medium.ttf"
    }
    FontLoader {
        id: heavyFontLoader
        source: "../Fonts/mplus-1p-heavy.ttf"
    }
    FontLoader {
        id: symbolFontLoader
        source: "../Fonts/mplus-1p-heavy.ttf"
    }
}
