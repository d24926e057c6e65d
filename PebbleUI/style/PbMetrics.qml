import QtQml

// Sizes in device-independent pixels.
QtObject {
    id: _top

    property bool darkMode: true

    readonly property int smallRadius: 4
    readonly property int mediumRadius: 6
    readonly property int largeRadius: 8
    readonly property int border: 1
    readonly property int focusRing: 2
    readonly property int focusRingGap: 2

    readonly property int spacingTiny: 2
    readonly property int spacingSmall: 4
    readonly property int spacing: 8
    readonly property int spacingLarge: 16

    readonly property int icon: 16
    readonly property int indicator: 14
    readonly property int spinner: 10
    readonly property int dotRegular: 6
    readonly property int dotSmall: 4

    readonly property int buttonHeight: 48
    readonly property int buttonPadding: 16
    readonly property int buttonHeightCompact: 28
    readonly property int buttonPaddingCompact: 8

    readonly property int fieldHeight: 28
    readonly property int fieldPadding: 8
    readonly property int fieldWidth: 120

    readonly property int comboHeight: 32
    readonly property int comboHeightCompact: 24
    readonly property int comboWidth: 160
    readonly property int comboRow: 28
    readonly property int comboRuleRow: 9
    readonly property int popupMargin: 6
    readonly property int gridOption: 32
    readonly property int gridGap: 2

    readonly property int sliderHandle: 12
    readonly property int sliderTrack: 4
    readonly property int sliderWidth: 200
    readonly property int autoMarkHeight: 8
    readonly property int autoMarkWidth: darkMode ? 1 : 3
    readonly property int labeledSliderWidth: 218
    readonly property int labeledSliderHeight: 36
    readonly property int labeledSliderRow: 20
    readonly property int labeledSliderField: 44

    readonly property real switchAspect: 1.85
    readonly property int scrollBar: 8
    readonly property int noteWidth: 218

    readonly property int tipWidth: 320
    readonly property int tipMargin: 16
    readonly property int tipSpacing: 10
    readonly property int tipEdge: 10

    readonly property int dialogWidth: 330
    readonly property int dialogMinHeight: 200
    readonly property int dialogScreenMargin: 32
    readonly property int dialogFooter: 68
    readonly property int dialogPadding: 16
    readonly property int dialogTopMargin: 80
    readonly property int dialogTopMarginMac: 48
    readonly property int modalHeader: 48

    readonly property int menuWidth: 200
    readonly property int menuItem: 44
    readonly property int menuSeparator: 9
    readonly property int menuBar: 32
    readonly property int pivotHeight: 8
    readonly property int pivotWidth: 16

    readonly property int windowHeader: 48
    readonly property int windowButton: 48
    readonly property int wordmarkHeight: 20
    readonly property int nativeButtonsMargin: 76

    readonly property real disabledOpacity: 0.6
    readonly property real dotModifiedOpacity: 0.7
    readonly property real dotDisabledOpacity: 0.5
    readonly property real scrollBarMinimum: 0.1
}
