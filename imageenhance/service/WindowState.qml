import QtQuick
import TControls
import TImageIO
import TImageSettings
import TIntegrations
import imageenhance

// What all views read about the window. State is bound at all times; nothing here is written.
QtObject {
    id: _top

    required property TControls controls
    required property TImageReader reader
    required property TIntegrations integrations
    required property Helpers helpers
    required property int editMode // EditMode
    property bool isSaving: false
    property bool isExporting: false

    readonly property bool pluginMode: integrations.isPluginMode
    readonly property string windowTitle: imageOpen ? helpers.imageUtils.getFilename(controls.currentImage) : ""
    readonly property bool isLoading: pluginMode ? integrations.loading : reader.loading
    readonly property bool imageOpen: controls.loadedImages.length > 0
    readonly property var imageData: pluginMode ? integrations.imagedata : reader.imagedata
    readonly property string imageSource: pluginMode ? integrations.currentImage : reader.filepath
    readonly property var imageMetadata: imageData.metadata ?? ({})
    readonly property real imageOriginalResolution: imageData.resolution ?? 72
    readonly property int imageOriginalResolutionUnit: imageData.resolutionUnit ?? TImageSettings.Inches

    readonly property bool autopilotRunning: imageOpen && controls.currentChanges >= 0 && controls.autoPilotStatus() === TImageSettings.Processing

    readonly property bool isRefining: editMode !== EditMode.None
    readonly property bool isCropping: editMode === EditMode.Crop
    readonly property bool isEditingSubject: editMode === EditMode.Subject
    readonly property bool isSelectingFace: editMode === EditMode.Faces
    readonly property bool isSelectingText: editMode === EditMode.Text
    readonly property bool isRetouching: editMode === EditMode.Inpaint
    readonly property bool isMasking: isEditingSubject || isSelectingText || isRetouching
    // Previews are empty meanwhile.
    readonly property bool hidesPreview: isSaving || isExporting

    readonly property real currentScale: {
        const enhance = controls.currentChanges >= 0 ? controls.currentFilter(controls.categories.enhance) : {};
        return enhance.enabled ? enhance.params.scale ?? 1 : 1;
    }
    readonly property size inputSize: {
        const ofFile = reader.filepath !== "" ? helpers.imageUtils.imageSize(reader.filepath) : Qt.size(-1, -1);
        return ofFile.width > 0 ? ofFile : helpers.imageDataUtils.imageSize(imageData.image);
    }
    readonly property size croppedSize: _top._scaled(1)
    readonly property size outputSize: _top._scaled(currentScale)
    readonly property rect currentCropRect: controls.currentImageData.cropRoi ?? Qt.rect(0, 0, 1, 1)
    readonly property real currentRotation: controls.currentImageData.rotation ?? 0
    readonly property size currentCropRatio: controls.currentImageData.cropRatio ?? Qt.size(1, 1)

    function _scaled(scale: real): size {
        return Qt.size(Math.round(inputSize.width * scale * currentCropRect.width), Math.round(inputSize.height * scale * currentCropRect.height));
    }
}
