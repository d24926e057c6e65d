import QtQuick
import imageenhance
import "../../utils/viewport.mjs" as Viewport

// The input's picture and the result's, linked in position, and what wheel and pinch do to their zoom.
Item {
    id: _top

    required property ImagePreviewState previewState
    required property ImageZoomControl zoomControl
    required property PreviewSource source

    readonly property alias original: _original
    readonly property alias preview: _preview
    readonly property alias input: _input
    readonly property size realSize: _view.realSize
    readonly property bool moving: _preview.showOriginal || _original.animating || _original.showOriginal || _view.moving || _pinch.active

    // The input's picture, until the user moves the other one.
    function leadWithOriginal(): void {
        _link.setActive("Original");
    }

    function leadingZoom(): ImageZoomControl {
        leadWithOriginal();
        return zoomControl;
    }

    // To a point of the picture: its corner, or with `offset` its middle.
    function moveTo(x: real, y: real, offset: bool): void {
        leadWithOriginal();
        _original.moveTo(offset ? x - _original.roi.width / 2 : x, offset ? y - _original.roi.height / 2 : y, false, true);
    }

    // A new image starts in the middle at its own size.
    function moveToCenter(): void {
        leadingZoom().setZoomLevel(1);
        _original.centre();
    }

    PreviewInput {
        id: _input

        property real wheelSum: 0

        onWheelTurned: delta => {
            const turned = Viewport.wheel(wheelSum, delta, _top.zoomControl.currentZoom);
            wheelSum = turned.sum;
            if (turned.zoom !== _top.zoomControl.currentZoom)
                _top.leadingZoom().setZoomLevel(turned.zoom);
        }
    }

    SingleImageView {
        id: _view

        anchors.fill: parent
        originalImage: _original
        previewImage: _preview
    }

    FlickableImage {
        id: _original

        name: "Original Image"
        input: _input
        imageData: _top.source.input
        actualImageSize: _top.source.inputSize
        currentZoom: _top.zoomControl.currentZoom
        currentScale: _top.previewState.scale
        pixelRatio: _top.previewState.pixelRatio
        cropRect: _top.previewState.shownCrop
        cropRotation: _top.previewState.shownRotation
        viewport: _top
        srgbFallback: _top.source.srgbFallback
        showImage: !_top.previewState.previewShown
        mouseWheelEnabled: !_top.previewState.cropping
    }

    FlickableImage {
        id: _preview

        name: "Preview Image"
        input: _input
        imageData: _top.previewState.isOfThisImage ? _top.source.result : ({})
        actualImageSize: Qt.size(_top.source.inputSize.width * _top.previewState.scale, _top.source.inputSize.height * _top.previewState.scale)
        currentZoom: _top.zoomControl.currentZoom / _top.previewState.scale
        currentScale: _top.previewState.scale
        pixelRatio: _top.previewState.pixelRatio
        cropRect: _top.previewState.shownCrop
        cropRotation: _top.previewState.shownRotation
        viewport: _top
        srgbFallback: _top.source.srgbFallback
        animateMovement: false
        showImage: _top.previewState.previewShown
        mouseWheelEnabled: !_top.previewState.cropping
    }

    PanningLink {
        id: _link

        originalImage: _original
        previewImage: _preview
    }

    // Beside the picture; over it the wheel comes through the picture's own pointer.
    WheelHandler {
        enabled: !_top.previewState.cropping
        onWheel: event => _input.wheelTurned(event.angleDelta.y)
    }

    PinchHandler {
        id: _pinch

        property real zoomBefore: 1

        target: null
        enabled: !_top.previewState.cropping
        onActiveChanged: zoomBefore = _top.zoomControl.currentZoom
        onActiveScaleChanged: {
            if (active)
                _top.zoomControl.setZoomLevel(Viewport.pinchZoom(zoomBefore, activeScale, _top.previewState.fitZoom));
        }
    }
}
