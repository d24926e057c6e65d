import QtQuick
import QtQuick.Layouts
import PebbleUI
import imageenhance

// The controls of Upscale, in the width that the parent gives.
FilterControl {
    id: _top

    required property ResolutionState resolution
    required property MainSettings settings
    property real fileSize: 0 // bytes; 0 when unknown
    property string fileSizeError: ""
    property bool appleProcessor: false

    ColumnLayout {
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
    }
    ModelSection {
        width: parent.width
        control: _top
        models: _models
        settings: _top.settings
        appleProcessor: _top.appleProcessor
    }
    DeactivationNotes {
        width: parent.width
        controls: _top.controls
        resolution: _top.resolution
    }

    UpscaleModels {
        id: _models
        controls: _top.controls
        filterName: _top.filterName
        parentCategory: _top.parentCategory
        resolution: _top.resolution
    }
}
