import QtQuick

// The older token set: dark at all times, created once by the program as `baseTheme`. New documents
// use PebbleStyle.
//
// The ramp runs from light (base10) to dark (base100). Between the anchors 10, 20, 30, 35, 70 and 80
// the steps are interpolated evenly; base90 is off the line on purpose: it is the raised surface.
// An alpha variant adds "o" and the percentage: base10o48 is base10 at 48 %.
QtObject {
    id: _top

    property bool isWindows: true

    readonly property int smallRadius: 4
    readonly property int mediumRadius: 6
    readonly property int largeRadius: 8

    readonly property color base10: "#F2F4F8"
    readonly property color base15: "#CFD2D7"
    readonly property color base20: "#ACB0B6"
    readonly property color base25: "#9A9FA6"
    readonly property color base30: "#878D96"
    readonly property color base35: "#4D5158"
    readonly property color base40: "#474A50"
    readonly property color base50: "#3A3C40"
    readonly property color base60: "#2E2F31"
    readonly property color base70: "#212121"
    readonly property color base80: "#171717"
    readonly property color base90: "#282828"
    readonly property color base100: "#000000"

    readonly property color base10o8: "#14F2F4F8"
    readonly property color base10o16: "#29F2F4F8"
    readonly property color base10o24: "#3DF2F4F8"
    readonly property color base10o48: "#7AF2F4F8"
    readonly property color base10o64: "#A3F2F4F8"
    readonly property color base10o80: "#CCF2F4F8"
    readonly property color base70o48: "#7A212121"
    readonly property color base70o80: "#CC212121"
    readonly property color base80o48: "#7A171717"
    readonly property color base80o80: "#CC171717"
    readonly property color base100o24: "#3D000000"
    readonly property color base100o48: "#7A000000"
    readonly property color base100o64: "#A3000000"

    readonly property color alert50: "#C03535"
    readonly property color primary20: "#A3C8FF"
    readonly property color primary50: "#417AFF"
    readonly property color primary70: "#4198FF"
    readonly property color autoPrimary: "#A6FF00"
    readonly property color auto50: "#22C55E"
    readonly property color updating50: "#99A0FF"
    readonly property color warning10: "#FFECA3"
    readonly property color warning20: "#FFD967"
    readonly property color orangePrimary: "#FF7449"
    readonly property color success50: "#95E364"

    readonly property Gradient gradient: Gradient {
        orientation: Gradient.Horizontal
        GradientStop { position: 0; color: _top.primary50 }
        GradientStop { position: 1; color: _top.updating50 }
    }

    readonly property BaseFonts font: BaseFonts {}
    readonly property BaseIcons icon: BaseIcons {}

    function pointSize(size: real): real {
        return isWindows ? size * 0.7 : size;
    }

    function richTextColor(text: string, color: color): string {
        return `<font color="${color}">${text}</font>`;
    }

    function wrapLink(text: string, link: string, color = _top.primary20): string {
        return `<a href="${link}" style="color: ${color}; text-decoration: none;">${text}</a>`;
    }

    function bold(text: string): string {
        return `<b>${text}</b>`;
    }

    function white(text: string): string {
        return richTextColor(text, "#FFFFFF");
    }
}
