import QtQuick
import QtQuick.Layouts
import PebbleUI
import TControls
import imageenhance

// The controls of Upscale, in the width that the parent gives.
Item {
    id: _top

    required property TControls controls
    required property string filterName
    required property string parentCategory
    required property ResolutionState resolution
    required property MainSettings settings
    property bool locked: false
    property bool nearLeftEdge: false
    property real fileSize: 0 // bytes; 0 when unknown
    property string fileSizeError: ""
    property bool appleProcessor: false

    implicitWidth: PebbleStyle.size.labeledSliderWidth
    implicitHeight: _column.implicitHeight

    ColumnLayout {
        id: _column
        width: parent.width
        spacing: PebbleStyle.size.spacingLarge

        ScaleSection {
            visible: _top.resolution.resizable
            enabled: !_top.locked
            resolution: _top.resolution
        }
        DimensionsSection {
            enabled: !_top.locked && _top.resolution.resizable
            resolution: _top.resolution
        }
        SizeEstimateLine {
            fileSize: _top.fileSize
            error: _top.fileSizeError
        }
        ModelSection {
            models: _models
            settings: _top.settings
            locked: _top.locked
            nearLeftEdge: _top.nearLeftEdge
            appleProcessor: _top.appleProcessor
        }
        DeactivationNotes {
            controls: _top.controls
            resolution: _top.resolution
        }
    }

    UpscaleModels {
        id: _models
        controls: _top.controls
        filterName: _top.filterName
        parentCategory: _top.parentCategory
        resolution: _top.resolution
    }
}
