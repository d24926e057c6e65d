import QtQuick
import TImageProcessor
import imageenhance
import "../../utils/viewport.mjs" as Viewport

// One picture at a zoom, which the pointer pans. Says what part of it is seen. Sizes of images are in pixels, those of
// items in device-independent ones.
Item {
    id: _top

    required property string name // "Original Image" or "Preview Image"
    required property var imageData // image map or result
    required property size actualImageSize // of the whole picture as enlarged
    required property PreviewInput input
    required property real currentZoom
    required property real currentScale
    property real pixelRatio: 1
    property rect cropRect: Qt.rect(0, 0, 1, 1)
    property real cropRotation: 0 // radians
    property bool showImage: true
    property bool srgbFallback: false
    property bool interactive: true
    property bool mouseWheelEnabled: true
    property bool animateMovement: true
    property real viewportStartX: 0
    property real viewportEndX: 1
    property Item viewport: null // the item that the two fractions refer to

    readonly property real totalZoom: currentZoom * currentScale
    readonly property size contentSize: Qt.size(totalZoom * actualImageSize.width / pixelRatio * cropRect.width, totalZoom * actualImageSize.height / pixelRatio * cropRect.height)
    readonly property alias middle: _private.middle
    readonly property rect visiblePart: _private.rect(Viewport.visibleArea(_flick.contentX / _flick.contentWidth, _flick.contentY / _flick.contentHeight, Math.min(1, _flick.width / _flick.contentWidth), Math.min(1, _flick.height / _flick.contentHeight)))
    readonly property rect roi: _private.rect(Viewport.roi(visiblePart, actualImageSize))
    readonly property rect boundingRect: _private.rect(Viewport.boundingRect(visiblePart, actualImageSize, cropRect, cropRotation))
    readonly property bool animating: _glide.running
    readonly property bool panning: _flick.moving || _flick.dragging
    readonly property bool pressed: _pointer.pressed
    readonly property bool showOriginal: panning || pressed

    // To a position of the content; `scaled` when x and y are pixels of the picture.
    function moveTo(x: real, y: real, animate = true, scaled = false): void {
        const target = Viewport.moveTarget(x, y, _flick.contentWidth - _flick.width, _flick.contentHeight - _flick.height, _flick.contentWidth, _flick.contentHeight, actualImageSize, scaled);
        if (target === undefined || (target.x === _flick.contentX && target.y === _flick.contentY))
            return;
        _glide.stop();
        _flick.cancelFlick();
        if (animate && animateMovement) {
            _glide.glideTo(target.x, target.y);
            return;
        }
        _flick.contentX = target.x;
        _flick.contentY = target.y;
        _private.noteCentre();
    }

    function centre(): void {
        lookAt(Qt.point(0.5, 0.5));
    }

    // Fractions of the content: they hold while zoom and sizes are still changing.
    function lookAt(middle: point): void {
        _glide.stop();
        _private.middle = middle;
        _private.place();
    }

    implicitWidth: contentSize.width
    implicitHeight: contentSize.height
    onContentSizeChanged: _private.place()
    onWidthChanged: _private.place()
    onHeightChanged: _private.place()

    Flickable {
        id: _flick

        anchors.fill: parent
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        pixelAligned: true
        interactive: _top.interactive
        onContentXChanged: if (_top.panning || _top.animating) _private.noteCentre()
        onContentYChanged: if (_top.panning || _top.animating) _private.noteCentre()

        TSelectionPreview {
            width: _flick.contentWidth
            height: _flick.contentHeight
            imageData: _top.imageData
            srgbFallback: _top.srgbFallback
            imageSize: _top.actualImageSize
            cropRect: _top.cropRect
            imageRotation: _top.cropRotation
            viewport: _top.viewport
            viewportStartX: _top.viewportStartX
            viewportEndX: _top.viewportEndX
            // Not its visibility: the tiles stay for the moment it comes back.
            opacity: _top.showImage ? 1 : 0
        }

        PreviewPointer {
            id: _pointer

            width: _flick.contentWidth
            height: _flick.contentHeight
            input: _top.input
            pannable: _flick.interactive
            panning: _top.panning
            wheelEnabled: _top.mouseWheelEnabled
        }
    }

    PictureGlide {
        id: _glide
        flick: _flick
    }

    QtObject {
        id: _private

        property bool placing: false
        property point middle: Qt.point(0.5, 0.5) // of what is seen, in fractions of the content

        function rect(r: var): rect {
            return Qt.rect(r.x, r.y, r.width, r.height);
        }

        function noteCentre(): void {
            // From the flickable itself: visiblePart may follow later in the same change.
            if (!placing && _flick.contentWidth > 0 && _flick.contentHeight > 0)
                middle = Qt.point((_flick.contentX + _flick.width / 2) / _flick.contentWidth, (_flick.contentY + _flick.height / 2) / _flick.contentHeight);
        }

        // Another size of the content or the view keeps the middle of what was seen in the middle.
        function place(): void {
            if (placing)
                return;
            placing = true;
            const size = _top.contentSize;
            _flick.contentWidth = size.width;
            _flick.contentHeight = size.height;
            _flick.contentX = Math.max(0, Math.min(middle.x * size.width - _flick.width / 2, size.width - _flick.width));
            _flick.contentY = Math.max(0, Math.min(middle.y * size.height - _flick.height / 2, size.height - _flick.height));
            placing = false;
        }
    }
}
