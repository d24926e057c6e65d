import QtQuick
import imageenhance
import "../../utils/viewport.mjs" as Viewport

// What the preview derives from zoom, results and settings, and when it asks for what is seen.
QtObject {
    id: _top

    required property WindowState windowState
    required property PreviewSource source
    required property size realSize // of the view area
    required property rect boundingRect
    required property bool originalKeyHeld
    required property bool moving
    required property bool navigating // by the navigator's frame

    // By the button beneath the picture; ends with the next movement.
    property bool originalActive: false

    // The view has come to rest on this part of the input, in pixels.
    signal requestProc(rect roi)

    readonly property var result: source.result // result map
    readonly property string currentImage: windowState.controls.currentImage
    readonly property real pixelRatio: windowState.helpers.osUtils.devicePixelRatio()
    readonly property bool cropping: windowState.isCropping
    readonly property rect wholeImage: Qt.rect(0, 0, 1, 1)
    // An edit mode shows the whole image upright.
    readonly property rect shownCrop: windowState.isRefining ? wholeImage : windowState.currentCropRect
    readonly property real shownRotation: windowState.isRefining ? 0 : windowState.currentRotation
    // Of the output; ahead of the result while a new one is on its way.
    readonly property alias scale: _private.currentScale
    readonly property real fitZoom: Viewport.fitZoom(source.inputSize, shownCrop, realSize, pixelRatio, scale, cropping)

    readonly property bool hasResult: !windowState.helpers.imageDataUtils.isEmpty(result.image)
    readonly property bool isCovered: hasResult && windowState.helpers.imageUtils.doesRectCoverRect(result.requestRoi, boundingRect)
    readonly property bool panningOffProcessedArea: hasResult && !isCovered
    readonly property bool isOfThisImage: result.filepath === currentImage
    readonly property bool originalRequested: originalKeyHeld || originalActive
    readonly property bool showOriginal: originalRequested || cropping || (result.scale ?? 1) !== scale || !isOfThisImage || panningOffProcessedArea
    readonly property bool previewShown: isCovered && !showOriginal

    // Several changes of one movement make one request.
    function rest(): void {
        if (moving || navigating)
            return;
        originalActive = false;
        Qt.callLater(_private.emitRequest);
    }

    onBoundingRectChanged: rest()
    onMovingChanged: rest()
    onCurrentImageChanged: _private.setScale(1)
    onResultChanged: {
        if (isOfThisImage && hasResult)
            _private.setScale(result.scale ?? 1);
    }

    readonly property Connections _ofControls: Connections {
        target: _top.windowState.controls

        function onCurrentControlsChanged(): void {
            _private.setScale(_private.enhanceScale());
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property real currentScale: 1

        function enhanceScale(): real {
            const controls = _top.windowState.controls;
            const enhance = controls.currentFilter(controls.categories.enhance);
            return enhance.enabled ? enhance.params.scale ?? 1 : 1;
        }

        function emitRequest(): void {
            _top.requestProc(_top.boundingRect);
        }

        function setScale(scale: real): void {
            if (scale > 0)
                currentScale = scale;
        }
    }
}
