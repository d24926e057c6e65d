import QtQuick
import QtQuick.Layouts
import PebbleUI

// What the card is while it is minimized.
RowLayout {
    id: _top

    required property bool canSavePreset

    readonly property alias entry: _show // where the keyboard comes to

    signal showSuggestions
    signal saveAsPreset

    spacing: PebbleStyle.size.spacingSmall

    PbButton {
        id: _show
        Layout.fillWidth: true
        type: PbButton.Type.Tertiary
        compact: true
        iconSource: PebbleStyle.icon.autopilot
        text: qsTr("Show suggestions")
        onClicked: _top.showSuggestions()
    }
    PbButton {
        visible: _top.canSavePreset
        type: PbButton.Type.Tertiary
        compact: true
        iconSource: PebbleStyle.icon.presetSave
        tooltip.text: qsTr("Save as preset")
        tooltip.hugContents: true
        onClicked: _top.saveAsPreset()
    }
}
