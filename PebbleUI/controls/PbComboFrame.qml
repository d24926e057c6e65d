import QtQuick
import PebbleUI

// The box around a choice. An outline marks a warning or an error.
PbBox {
    id: _top

    required property bool active
    required property color outlineColor

    readonly property bool _outlined: outlineColor.a > 0

    radius: PebbleStyle.size.smallRadius
    color: active ? PebbleStyle.color.darkGray : PebbleStyle.color.darkerGray
    border.width: _outlined ? PebbleStyle.size.focusRing : PebbleStyle.size.border
    border.color: _outlined ? outlineColor : PebbleStyle.color.gray
    opacity: enabled ? 1 : PebbleStyle.size.disabledOpacity
}
