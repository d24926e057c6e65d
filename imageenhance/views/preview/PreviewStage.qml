import QtQuick
import imageenhance

// The pictures at their zoom, what is derived from both, and what lies over them.
Item {
    id: _top

    required property var engine // ImageProcessor
    required property WindowState windowState
    required property PreviewSource source
    required property ImageZoomControl zoomControl
    required property bool panKeyHeld
    required property bool originalRequested
    required property bool srgbFallback

    readonly property alias pictures: _pictures
    readonly property alias previewState: _state
    readonly property alias statusBar: _status
    readonly property real pixelRatio: windowState.helpers.osUtils.devicePixelRatio()

    // Another part is seen, or a movement began or ended.
    signal viewChanged
    signal rightClicked(point windowPoint)
    signal focusWanted

    PicturePair {
        id: _pictures

        anchors.fill: parent
        previewState: _state
        zoomControl: _top.zoomControl
        imageSize: _top.source.inputSize
        beforeImageData: _top.source.input
        procResult: _top.source.result
        pixelRatio: _top.pixelRatio
        panKeyHeld: _top.panKeyHeld
        srgbFallback: _top.srgbFallback
        onRightClicked: point => _top.rightClicked(point)
        onFocusWanted: _top.focusWanted()
    }

    ImagePreviewState {
        id: _state

        imageSize: _top.source.inputSize
        realSize: _pictures.realSize
        pixelRatio: _top.pixelRatio
        currentControls: _top.windowState.controls.currentControls
        currentImage: _top.windowState.controls.currentImage
        procResult: _top.source.result
        cropRect: _top.windowState.currentCropRect
        cropRotation: _top.windowState.currentRotation
        editing: _top.windowState.isRefining
        cropping: _top.windowState.isCropping
        boundingRect: _pictures.original.boundingRect
        showOriginalWanted: _top.originalRequested
        moving: _pictures.moving || _top.zoomControl.pressed
        imageUtils: _top.windowState.helpers.imageUtils
        imageDataUtils: _top.windowState.helpers.imageDataUtils
        onBoundingRectChanged: _top.viewChanged()
        onMovingChanged: _top.viewChanged()
    }

    BusyCover {
        anchors.fill: parent
        running: _top.windowState.imageOpen && _top.windowState.isLoading
    }

    StatusBar {
        id: _status

        anchors { left: parent.left; bottom: parent.bottom; margins: 10 }
        engine: _top.engine
        editMode: _top.windowState.editMode
        imageLoaded: !_top.source.inputEmpty
        isLoadingImage: _top.windowState.isLoading
        isRunningAutopilot: _top.windowState.autopilotRunning
        originalRequested: _top.originalRequested
        noFiltersEnabled: !_top.windowState.controls.areFiltersEnabled
        previewUpdated: _state.hasResult
        panningOffProcessedArea: _state.panningOffProcessedArea
        inpaintLocked: false
    }
}
