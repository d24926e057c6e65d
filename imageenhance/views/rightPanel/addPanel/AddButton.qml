import QtQuick
import PebbleUI

// Opens the add panel. An icon alone where the column is collapsed.
PbButton {
    required property bool collapsed
    required property bool panelOpen

    type: PbButton.Type.Tertiary
    text: qsTr("Add enhancements")
    showText: !collapsed
    iconSource: PebbleStyle.icon.plus
    selected: panelOpen
    tooltip.text: collapsed && !panelOpen ? text : ""
    tooltip.alignment: PbTooltipPlane.Alignment.Left
    Accessible.description: qsTr("Opens a list of filters and presets")
}
