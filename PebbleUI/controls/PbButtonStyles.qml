pragma Singleton

import QtQuick
import PebbleUI

// The colours of every type of button. Each label has a contrast of 4.5 to 1 or better, in
// both themes and in every state but disabled.
QtObject {
    id: _top

    readonly property PbColors _color: PebbleStyle.color

    readonly property PbStateColors _onBright: PbStateColors {
        normal: _top._color.alwaysDark
        disabled: _top._color.textDisabled
    }

    readonly property PbStateColors _onPage: PbStateColors {
        normal: _top._color.textLight
        hovered: _top._color.textHoverLight
        selected: _top._color.textHoverLight
        disabled: _top._color.textDisabled
    }

    readonly property PbButtonStyle primary: PbButtonStyle {
        background: PbStateColors {
            normal: _top._color.primeBlue
            hovered: _top._color.primeBlueShade6
            selected: _top._color.primeBlueShade6
            disabled: _top._color.darkGray
        }
        label: _top._onBright
    }

    readonly property PbButtonStyle secondary: PbButtonStyle {
        background: PbStateColors {
            normal: _top._color.darkGray
            hovered: _top._color.gray
            selected: _top._color.gray
            disabled: _top._color.darkerGray
        }
        label: _top._onPage
    }

    readonly property PbButtonStyle tertiary: PbButtonStyle {
        background: PbStateColors {
            normal: _top._color.clear
            hovered: _top._color.darkGray
            selected: _top._color.darkGray
            disabled: _top._color.clear
        }
        label: _top._onPage
    }

    // Two colours: an icon of the product's own beside an ordinary label.
    readonly property PbButtonStyle duotone: PbButtonStyle {
        background: PbStateColors {
            normal: _top._color.darkerGray
            hovered: _top._color.darkGray
            selected: _top._color.darkGray
            disabled: _top._color.darkerGray
        }
        label: _top._onPage
        icon: PbStateColors {
            normal: _top._color.primeGreen
            disabled: _top._color.textDisabled
        }
    }

    readonly property PbButtonStyle warning: PbButtonStyle {
        background: PbStateColors {
            normal: _top._color.warningYellow
            hovered: _top._color.darkYellow
            selected: _top._color.darkYellow
            disabled: _top._color.darkGray
        }
        label: _top._onBright
    }

    readonly property PbButtonStyle destructive: PbButtonStyle {
        background: PbStateColors {
            normal: _top._color.darkRed
            hovered: _top._color.primeRed
            selected: _top._color.primeRed
            disabled: _top._color.darkGray
        }
        label: PbStateColors {
            normal: _top._color.textAlwaysLight
            hovered: _top._color.alwaysDark
            selected: _top._color.alwaysDark
            disabled: _top._color.textDisabled
        }
    }

    // One colour, by a control's state. The first that holds counts: disabled, hovered, selected, normal.
    function shade(colors: PbStateColors, isEnabled: bool, isHovered: bool, isSelected: bool): color {
        return !isEnabled ? colors.disabled : isHovered ? colors.hovered : isSelected ? colors.selected : colors.normal;
    }

    // In the order of PbButton.Type.
    readonly property list<PbButtonStyle> byType: [primary, secondary, tertiary, duotone, warning, destructive]
}
