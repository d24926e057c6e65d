import QtQuick
import PebbleUI

// The unit at the end of a field, as a choice.
PbComboBox {
    id: _top

    required property string unit
    required property list<string> units

    signal chosen(int index)

    type: PbComboBox.Type.Compact
    model: units
    currentIndex: units.indexOf(unit)
    implicitWidth: 60
    leftPadding: PebbleStyle.size.spacingSmall
    rightPadding: indicator.width + PebbleStyle.size.spacing
    onActivated: index => chosen(index)

    background: PbBox {
        radius: PebbleStyle.size.smallRadius
        color: _top.hovered || _top.down ? PebbleStyle.color.darkGray : PebbleStyle.color.darkerGray
    }
    indicator: PbComboIndicator {
        x: _top.width - width - PebbleStyle.size.spacingSmall
        y: (_top.height - height) / 2
        busy: false
    }
}
