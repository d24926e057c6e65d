import QtQuick
import PebbleUI
import imageenhance

// The image area: the input and the latest result at one zoom and position, the bar beneath, and the rectangle of the
// input that the engine is asked to process.
Item {
    id: _top

    enum ViewMode { SingleView, SideBySideView, SplitView }

    required property var engine // ImageProcessor
    required property var controls // TControls
    required property WindowState windowState
    required property MainSettings settings
    required property Helpers helpers
    required property bool panKeyHeld
    required property bool originalKeyHeld
    required property int navigatorWidth

    readonly property real pixelRatio: helpers.osUtils.devicePixelRatio()
    // Image map and result; empty while previews are hidden.
    readonly property var beforeImageData: windowState.hidesPreview ? ({}) : engine.inputImage
    readonly property var procResult: windowState.hidesPreview ? ({}) : engine.procResult
    readonly property rect procRoi: _state.boundingRect
    readonly property rect roi: _pictures.original.roi
    readonly property bool moving: _state.moving
    readonly property bool isPanning: _pictures.original.panning || _pictures.preview.panning
    readonly property bool imageLoaded: !beforeImageEmpty
    readonly property var beforeImage: beforeImageData.image ?? null
    readonly property bool beforeImageEmpty: helpers.imageDataUtils.isEmpty(beforeImageData.image)
    readonly property bool originalRequested: originalKeyHeld || _private.originalActive
    readonly property bool showBefore: originalRequested
    readonly property bool panningOffProcessedArea: _state.panningOffProcessedArea
    readonly property int viewMode: ImagePreview.ViewMode.SingleView
    readonly property alias navigator: _navigator
    readonly property alias statusBar: _status
    readonly property alias previewImage: _pictures.preview
    readonly property int progressState: _status.progressState

    signal requestProc(rect roi)
    signal openImageDialog
    signal showRightClickMenuAtPoint(point windowPoint)
    signal focusWanted

    function zoomIn(): void { _private.zoom(() => _controls.zoomControl.incrementZoom()); }
    function zoomOut(): void { _private.zoom(() => _controls.zoomControl.decrementZoom()); }
    function zoomToFit(): void { _private.zoom(() => _controls.zoomControl.setToFit()); }
    function resetZoom(): void { _private.zoom(() => _controls.zoomControl.setToDefault()); }
    function zoomToValue(value: real): void { _private.zoom(() => _controls.zoomControl.setZoomLevel(value)); }

    function setViewMode(mode: int): void {
        if (mode < ImagePreview.ViewMode.SingleView || mode > ImagePreview.ViewMode.SplitView)
            console.warn("Invalid view mode passed:", mode);
        else
            settings.lastViewMode = mode;
    }

    // To a point of the picture: its corner, or with `offset` its middle.
    function setPreviewCenter(x: real, y: real, offset = false): void {
        const seen = _pictures.original.roi;
        _pictures.leadWithOriginal();
        _pictures.original.moveTo(offset ? x - seen.width / 2 : x, offset ? y - seen.height / 2 : y, false, true);
    }

    // A new image stands in the middle at its own size.
    function moveToCenter(): void {
        zoomToValue(1);
        _pictures.original.centre();
    }

    onBeforeImageDataChanged: {
        const uid = beforeImageData.uid ?? "";
        if (uid === _private.shownUid)
            return;
        _private.shownUid = uid;
        _private.originalActive = false;
        _pictures.leadWithOriginal();
        moveToCenter();
        Qt.callLater(_top.moveToCenter); // sizes may not stand yet
    }

    Rectangle {
        anchors.fill: parent
        color: PebbleStyle.color.pageBkg
    }

    PicturePair {
        id: _pictures

        anchors.fill: parent
        anchors.bottomMargin: _controls.height
        previewState: _state
        zoomControl: _controls.zoomControl
        imageSize: _state.imageSize
        beforeImageData: _top.beforeImageData
        procResult: _top.procResult
        pixelRatio: _top.pixelRatio
        panKeyHeld: _top.panKeyHeld
        onRightClicked: point => _top.showRightClickMenuAtPoint(point)
        onFocusWanted: _top.focusWanted()
    }

    ImagePreviewState {
        id: _state

        imageSize: _top.helpers.imageDataUtils.imageSize(_top.beforeImageData.image)
        realSize: _pictures.realSize
        pixelRatio: _top.pixelRatio
        currentControls: _top.controls.currentControls
        currentImage: _top.controls.currentImage
        procResult: _top.procResult
        cropRect: _top.windowState.currentCropRect
        cropRotation: _top.windowState.currentRotation
        editing: _top.windowState.isRefining
        cropping: _top.windowState.isCropping
        boundingRect: _pictures.original.boundingRect
        showOriginalWanted: _top.originalRequested
        moving: _pictures.moving || _controls.zoomControl.pressed
        imageUtils: _top.helpers.imageUtils
        imageDataUtils: _top.helpers.imageDataUtils
        onBoundingRectChanged: _private.requestProc()
        onMovingChanged: _private.requestProc()
    }

    BusyCover {
        anchors.fill: _pictures
        running: _top.windowState.imageOpen && _top.windowState.isLoading
    }

    StatusBar {
        id: _status

        anchors.left: parent.left
        anchors.bottom: _controls.top
        anchors.margins: 10
        engine: _top.engine
        editMode: _top.windowState.editMode
        imageLoaded: _top.imageLoaded
        isLoadingImage: _top.windowState.isLoading
        isRunningAutopilot: _top.windowState.autopilotRunning
        originalRequested: _top.originalRequested
        noFiltersEnabled: !_top.controls.areFiltersEnabled
        previewUpdated: _state.hasResult
        panningOffProcessedArea: _state.panningOffProcessedArea
        inpaintLocked: false
    }

    ImageNavigator {
        id: _navigator

        width: _top.navigatorWidth
        imageData: _top.beforeImageData
        picture: _pictures.original
        imageSize: _state.imageSize
        cropRect: _state.shownCrop
        cropRotation: _state.shownRotation
        frameShown: _top.imageLoaded && !_top.windowState.isLoading
        onGrabbed: {
            _pictures.leadWithOriginal();
            _top.focusWanted();
        }
        onReleased: _private.requestProc()
        onRightClicked: point => _top.showRightClickMenuAtPoint(point)
    }

    PreviewControls {
        id: _controls

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        pluginMode: _top.windowState.pluginMode
        imageLoaded: _top.imageLoaded
        isLoading: _top.windowState.isLoading
        editMode: _top.windowState.editMode
        originalActive: _private.originalActive
        fitScale: _state.fitZoom
        outputScale: _state.scale
        followsUpscale: _top.settings.updateZoomAfterUpscale
        onAddImages: _top.openImageDialog()
        onToggleOriginal: _private.originalActive = !_private.originalActive
    }

    QtObject {
        id: _private

        property bool originalActive: false
        property string shownUid: ""

        function zoom(change: var): void {
            _pictures.leadWithOriginal();
            change();
        }

        // Several changes of one move make one request.
        function requestProc(): void {
            if (_state.moving || _navigator.panning)
                return;
            originalActive = false;
            Qt.callLater(_private.emitRequest);
        }

        function emitRequest(): void {
            _top.requestProc(_top.procRoi);
        }
    }
}
