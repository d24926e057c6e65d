import QtQuick
import PebbleUI
import imageenhance

// A row of the add panel's list: an entry, and the title of the section that it begins.
Column {
    id: _top

    required property int index
    required property var modelData // a row of the table
    required property AddPanelTips tips

    readonly property alias entry: _entry
    readonly property string preset: modelData.kind === AddPanelTable.Kind.Preset ? modelData.name : "" // empty for others

    signal focused(bool active)
    signal pointerAt(point scene)
    signal chosen
    signal menuWanted(point position)

    PbText {
        visible: text !== ""
        width: parent.width
        height: 28
        leftPadding: PebbleStyle.size.spacing
        type: PbLabel.Type.Label
        text: _top.modelData.section
        color: PebbleStyle.color.lighterGray
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    AddPanelEntry {
        id: _entry

        width: parent.width
        text: _top.modelData.label
        iconSource: _top.modelData.icon
        available: _top.tips.isAvailable(_top.modelData)
        description: _top.tips.description(_top.modelData)
        onActiveFocusChanged: _top.focused(activeFocus)
        onPointerAt: scene => _top.pointerAt(scene)
        onMenuWanted: position => _top.menuWanted(position)
        onClicked: {
            forceActiveFocus();
            if (available)
                _top.chosen();
        }
    }
}
