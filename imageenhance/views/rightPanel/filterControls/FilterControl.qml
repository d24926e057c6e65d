import QtQuick
import PebbleUI
import TControls

// What the controls of one filter have in common: the filter that they belong to, and a column of what they show.
Item {
    id: _top

    required property TControls controls
    required property string filterName // with its number: "Denoise2"
    required property string parentCategory
    required property bool locked
    required property bool nearLeftEdge // of the window

    readonly property FilterRecord record: FilterRecord {
        controls: _top.controls
        filterName: _top.filterName
        parentCategory: _top.parentCategory
        followed: _top.visible
    }

    property bool shown: true // whether there is anything to set

    // Where tooltips go: beside the panel.
    readonly property int tipSide: nearLeftEdge ? PbTooltipPlane.Alignment.Right : PbTooltipPlane.Alignment.Left
    readonly property real tipOffset: nearLeftEdge ? 16 : -16

    default property alias content: _column.data

    implicitHeight: shown ? _column.implicitHeight : 0

    Column {
        id: _column
        visible: _top.shown
        width: parent.width
        spacing: PebbleStyle.size.spacingLarge
    }
}
