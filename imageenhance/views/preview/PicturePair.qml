import QtQuick
import imageenhance
import "../../utils/viewport.mjs" as Viewport

// The input's picture and the result's, linked in position, and what wheel and pinch do to their zoom.
Item {
    id: _top

    required property ImagePreviewState previewState
    required property ImageZoomControl zoomControl
    required property size imageSize
    required property var beforeImageData
    required property var procResult
    required property real pixelRatio
    required property bool panKeyHeld
    required property bool srgbFallback

    readonly property alias original: _original
    readonly property alias preview: _preview
    readonly property size realSize: _view.realSize
    readonly property bool moving: _preview.showOriginal || _original.animating || _original.showOriginal || _view.moving || _pinch.active

    signal rightClicked(point windowPoint)
    signal focusWanted

    function leadWithOriginal(): void {
        _link.leadWithOriginal();
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
        imageData: _top.beforeImageData
        actualImageSize: _top.imageSize
        currentZoom: _top.zoomControl.currentZoom
        currentScale: _top.previewState.scale
        pixelRatio: _top.pixelRatio
        cropRect: _top.previewState.shownCrop
        cropRotation: _top.previewState.shownRotation
        viewport: _top
        srgbFallback: _top.srgbFallback
        showImage: !_top.previewState.previewShown
        mouseWheelEnabled: !_top.previewState.cropping
        panKeyHeld: _top.panKeyHeld
        onWheelTurned: delta => _private.wheel(delta)
        onRightClicked: point => _top.rightClicked(point)
        onFocusWanted: _top.focusWanted()
    }

    FlickableImage {
        id: _preview

        name: "Preview Image"
        imageData: _top.previewState.isOfThisImage ? _top.procResult : ({})
        actualImageSize: Qt.size(_top.imageSize.width * _top.previewState.scale, _top.imageSize.height * _top.previewState.scale)
        currentZoom: _top.zoomControl.currentZoom / _top.previewState.scale
        currentScale: _top.previewState.scale
        pixelRatio: _top.pixelRatio
        cropRect: _top.previewState.shownCrop
        cropRotation: _top.previewState.shownRotation
        viewport: _top
        srgbFallback: _top.srgbFallback
        animateMovement: false
        showImage: _top.previewState.previewShown
        mouseWheelEnabled: !_top.previewState.cropping
        panKeyHeld: _top.panKeyHeld
        onWheelTurned: delta => _private.wheel(delta)
        onRightClicked: point => _top.rightClicked(point)
        onFocusWanted: _top.focusWanted()
    }

    PanningLink {
        id: _link

        originalImage: _original
        previewImage: _preview
    }

    // Beside the picture; over it the wheel comes through the picture's own pointer.
    WheelHandler {
        enabled: !_top.previewState.cropping
        onWheel: event => _private.wheel(event.angleDelta.y)
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

    QtObject {
        id: _private

        property real wheelSum: 0

        function wheel(delta: real): void {
            const turned = Viewport.wheel(wheelSum, delta, _top.zoomControl.currentZoom);
            wheelSum = turned.sum;
            if (turned.zoom !== _top.zoomControl.currentZoom) {
                _top.leadWithOriginal();
                _top.zoomControl.setZoomLevel(turned.zoom);
            }
        }
    }
}
