import QtQuick
import PebbleUI
import imageenhance

// The image area: the input and the latest result at one zoom and position, the bar beneath, and the rectangle of the
// input that the engine is asked to process.
Item {
    id: _top

    enum ViewMode { SingleView, SideBySideView, SplitView }

    required property ImageProcessor engine
    required property WindowState windowState
    required property MainSettings settings
    required property bool originalKeyHeld
    required property int navigatorWidth

    readonly property rect procRoi: _state.boundingRect
    readonly property rect roi: _pictures.original.roi
    readonly property bool moving: _state.moving
    readonly property bool isPanning: _pictures.original.panning || _pictures.preview.panning
    readonly property var beforeImage: _source.input.image ?? null
    readonly property alias beforeImageEmpty: _source.inputEmpty
    readonly property bool imageLoaded: !beforeImageEmpty
    readonly property bool originalRequested: _state.originalRequested
    readonly property bool showBefore: originalRequested
    readonly property bool panningOffProcessedArea: _state.panningOffProcessedArea
    readonly property int viewMode: ImagePreview.ViewMode.SingleView
    readonly property alias navigator: _navigator
    readonly property alias statusBar: _status
    readonly property FlickableImage previewImage: _pictures.preview

    signal requestProc(rect roi)
    signal openImageDialog
    signal showRightClickMenuAtPoint(point windowPoint)
    signal focusWanted
    signal selectionMaskPositionChanged(point position) // the pointer in a mask tool, in pixels of the input

    // The input's picture leads all that moves the view from outside the pictures.
    function zoomIn(): void { _pictures.leadingZoom().incrementZoom(); }
    function zoomOut(): void { _pictures.leadingZoom().decrementZoom(); }
    function zoomToFit(): void { _pictures.leadingZoom().setToFit(); }
    function resetZoom(): void { _pictures.leadingZoom().setToDefault(); }
    function zoomToValue(value: real): void { _pictures.leadingZoom().setZoomLevel(value); }
    function setPreviewCenter(x: real, y: real, offset = false): void { _pictures.moveTo(x, y, offset); }

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
            _state.originalActive = false;
            _pictures.moveToCenter();
            Qt.callLater(_pictures.moveToCenter); // sizes may not be settled yet
        }
    }

    ImagePreviewState {
        id: _state

        windowState: _top.windowState
        source: _source
        realSize: _pictures.realSize
        boundingRect: _pictures.original.boundingRect
        originalKeyHeld: _top.originalKeyHeld
        moving: _pictures.moving || _controls.zoomControl.pressed
        navigating: _navigator.panning
        onRequestProc: roi => _top.requestProc(roi)
    }

    Item {
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: _controls.top }

        PicturePair {
            id: _pictures

            anchors.fill: parent
            previewState: _state
            source: _source
            zoomControl: _controls.zoomControl
            input.onRightClicked: point => _top.showRightClickMenuAtPoint(point)
            input.onFocusWanted: _top.focusWanted()
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
            imageLoaded: _top.imageLoaded
            isLoadingImage: _top.windowState.isLoading
            isRunningAutopilot: _top.windowState.autopilotRunning
            originalRequested: _top.originalRequested
            noFiltersEnabled: !_top.windowState.controls.areFiltersEnabled
            previewUpdated: _state.hasResult
            panningOffProcessedArea: _state.panningOffProcessedArea
            inpaintLocked: false
        }
    }

    ImageNavigator {
        id: _navigator

        width: _top.navigatorWidth
        source: _source
        previewState: _state
        picture: _pictures.original
        frameShown: _top.imageLoaded && !_top.windowState.isLoading
        onGrabbed: {
            _pictures.leadWithOriginal();
            _top.focusWanted();
        }
        onReleased: _state.rest()
        onRightClicked: point => _top.showRightClickMenuAtPoint(point)
    }

    PreviewControls {
        id: _controls

        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        windowState: _top.windowState
        previewState: _state
        settings: _top.settings
        imageLoaded: _top.imageLoaded
        originalActive: _state.originalActive
        onAddImages: _top.openImageDialog()
        onToggleOriginal: _state.originalActive = !_state.originalActive
    }
}
