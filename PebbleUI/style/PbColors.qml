import QtQuick

// The colours by role. A grey's name says how far it stands from the page, not how light it is:
// in the light theme the greys turn round.
QtObject {
    id: _top

    property bool darkMode: true

    // Raw greys, for the roles below only.
    readonly property color _black: "#000000"
    readonly property color _gray10: "#171717"
    readonly property color _gray9: "#212121"
    readonly property color _gray8: "#2B2B2B"
    readonly property color _gray7: "#353535"
    readonly property color _gray6: "#545454"
    readonly property color _gray5: "#7C7C7C"
    readonly property color _gray4: "#979797"
    readonly property color _gray3: "#B0B0B0"
    readonly property color _gray2: "#D0D0D0"
    readonly property color _gray1: "#DDDDDD"
    readonly property color _gray0: "#F2F2F2"
    readonly property color _white: "#FFFFFF"

    readonly property color white: darkMode ? _white : _black
    readonly property color almostWhite: darkMode ? _gray0 : _gray10
    readonly property color lightestGray: darkMode ? _gray2 : _gray9
    readonly property color lighterGray: darkMode ? _gray3 : _gray8
    readonly property color lightGray: darkMode ? _gray4 : _gray7
    readonly property color gray: darkMode ? _gray6 : _gray5
    readonly property color darkGray: darkMode ? _gray7 : _gray2
    readonly property color darkerGray: darkMode ? _gray8 : _gray1
    readonly property color darkestGray: darkMode ? _gray9 : _gray0
    readonly property color almostBlack: darkMode ? _gray10 : _white
    readonly property color black: darkMode ? _black : _white
    readonly property color alwaysLight: darkMode ? _gray0 : _white
    readonly property color alwaysDark: _gray10

    readonly property color pageBkg: darkMode ? _gray10 : _gray2
    readonly property color panelBkg: darkMode ? _gray9 : _white
    readonly property color noteBkg: darkMode ? _gray8 : translucentYellow

    readonly property color textLight: darkMode ? _gray0 : _gray8
    readonly property color textHoverLight: darkMode ? _white : _black
    readonly property color textdark: darkMode ? _gray9 : _gray1
    readonly property color textHoverDark: darkMode ? _black : _white
    readonly property color textDisabled: darkMode ? _gray6 : _gray4
    readonly property color textSecondary: darkMode ? _gray4 : _gray5
    // What stands in a field and is no value: placeholders, labels, units.
    readonly property color textQuiet: darkMode ? _gray4 : _gray6
    readonly property color textWarning: darkMode ? warningYellow : textAlwaysDark
    readonly property color textError: darkMode ? primeRed : textAlwaysDark
    readonly property color textAlwaysLight: _gray0
    readonly property color textAlwaysDark: _gray8

    readonly property color primeGreen: darkMode ? alwaysPrimeGreen : _gray10
    readonly property color title: primeGreen
    readonly property color primeBlue: "#4198FF"
    readonly property color primeBlueShade6: "#0E7CFF"
    readonly property color primeRed: "#FF2156"
    readonly property color darkRed: "#B10E35"
    readonly property color darkYellow: "#F5A50A"
    readonly property color warningYellow: "#FFCE21"
    readonly property color translucentYellow: "#F5E194"
    readonly property color alwaysPrimeGreen: "#A6FF00"
    readonly property color brandingPurpleSwatch: "#914EFF"
    readonly property color cheatPurpleSwatch: "#B98EFE"

    // The ring around what has the keyboard: no blue of ours stands out from a light page.
    readonly property color focusRing: darkMode ? primeBlue : alwaysDark
    readonly property color clear: "transparent"
    readonly property color tipBorder: _gray8
    readonly property color dialogDim: darkMode ? Qt.alpha(_black, 0.6) : Qt.alpha(_gray10, 0.4)
}
