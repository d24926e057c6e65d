import QtQuick
import PebbleUI
import imageenhance

// The image area: the input and the latest result at one zoom and position, the bar beneath, and the rectangle of the
// input that the engine is asked to process.
Item {
    id: _top

    enum ViewMode { SingleView, SideBySideView, SplitView }

    required property var engine // ImageProcessor
    required property WindowState windowState
    required property MainSettings settings
    required property bool panKeyHeld
    required property bool originalKeyHeld
    required property int navigatorWidth

    readonly property rect procRoi: _stage.previewState.boundingRect
    readonly property rect roi: _stage.pictures.original.roi
    readonly property bool moving: _stage.previewState.moving
    readonly property bool isPanning: _stage.pictures.original.panning || _stage.pictures.preview.panning
    readonly property var beforeImage: _source.input.image ?? null
    readonly property alias beforeImageEmpty: _source.inputEmpty
    readonly property bool imageLoaded: !beforeImageEmpty
    readonly property bool originalRequested: originalKeyHeld || _private.originalActive
    readonly property bool showBefore: originalRequested
    readonly property bool panningOffProcessedArea: _stage.previewState.panningOffProcessedArea
    readonly property int viewMode: ImagePreview.ViewMode.SingleView
    readonly property alias navigator: _navigator
    readonly property alias statusBar: _stage.statusBar
    readonly property FlickableImage previewImage: _stage.pictures.preview
    readonly property int progressState: statusBar.progressState

    signal requestProc(rect roi)
    signal openImageDialog
    signal showRightClickMenuAtPoint(point windowPoint)
    signal focusWanted
    signal selectionMaskPositionChanged(point position) // the pointer in a mask tool, in pixels of the input

    function zoomIn(): void { _moves.zoomIn(); }
    function zoomOut(): void { _moves.zoomOut(); }
    function zoomToFit(): void { _moves.zoomToFit(); }
    function resetZoom(): void { _moves.resetZoom(); }
    function zoomToValue(value: real): void { _moves.zoomToValue(value); }
    function setPreviewCenter(x: real, y: real, offset = false): void { _moves.setPreviewCenter(x, y, offset); }

    function setViewMode(mode: int): void {
        if (mode < ImagePreview.ViewMode.SingleView || mode > ImagePreview.ViewMode.SplitView)
            console.warn("Invalid view mode passed:", mode);
        else
            settings.lastViewMode = mode;
    }

    Rectangle {
        anchors.fill: parent
        color: PebbleStyle.color.pageBkg
    }

    PreviewSource {
        id: _source

        engine: _top.engine
        windowState: _top.windowState
        onAnotherImage: {
            _private.originalActive = false;
            _moves.moveToCenter();
            Qt.callLater(_moves.moveToCenter); // sizes may not stand yet
        }
    }

    PreviewStage {
        id: _stage

        anchors.fill: parent
        anchors.bottomMargin: _controls.height
        engine: _top.engine
        windowState: _top.windowState
        source: _source
        zoomControl: _controls.zoomControl
        panKeyHeld: _top.panKeyHeld
        originalRequested: _top.originalRequested
        srgbFallback: _top.settings.srgbFallback
        onViewChanged: _private.requestProc()
        onRightClicked: point => _top.showRightClickMenuAtPoint(point)
        onFocusWanted: _top.focusWanted()
    }

    ImageNavigator {
        id: _navigator

        width: _top.navigatorWidth
        imageData: _source.input
        srgbFallback: _top.settings.srgbFallback
        picture: _stage.pictures.original
        imageSize: _source.inputSize
        cropRect: _stage.previewState.shownCrop
        cropRotation: _stage.previewState.shownRotation
        frameShown: _top.imageLoaded && !_top.windowState.isLoading
        onGrabbed: {
            _stage.pictures.leadWithOriginal();
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
        fitScale: _stage.previewState.fitZoom
        outputScale: _stage.previewState.scale
        followsUpscale: _top.settings.updateZoomAfterUpscale
        onAddImages: _top.openImageDialog()
        onToggleOriginal: _private.originalActive = !_private.originalActive
    }

    PreviewMoves {
        id: _moves
        pictures: _stage.pictures
        zoomControl: _controls.zoomControl
    }

    QtObject {
        id: _private

        property bool originalActive: false

        // Several changes of one move make one request.
        function requestProc(): void {
            if (_top.moving || _navigator.panning)
                return;
            originalActive = false;
            Qt.callLater(_private.emitRequest);
        }

        function emitRequest(): void {
            _top.requestProc(_top.procRoi);
        }
    }
}
