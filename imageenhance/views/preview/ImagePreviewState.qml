import QtQuick
import "../../utils/viewport.mjs" as Viewport

// What the preview derives from zoom, results and settings.
QtObject {
    id: _top

    required property size imageSize // of the input, in pixels
    required property size realSize // of the view area
    required property real pixelRatio
    required property var currentControls
    required property var procResult
    required property string currentImage
    required property rect cropRect
    required property real cropRotation
    required property bool editing // any edit mode
    required property bool cropping
    required property rect boundingRect
    required property bool showOriginalWanted // by key or button
    required property bool moving
    required property var imageUtils
    required property var imageDataUtils

    readonly property rect wholeImage: Qt.rect(0, 0, 1, 1)
    // An edit mode shows the whole image upright.
    readonly property rect shownCrop: editing ? wholeImage : cropRect
    readonly property real shownRotation: editing ? 0 : cropRotation
    // Of the output; ahead of the result while a new one is on its way.
    readonly property alias scale: _private.currentScale
    readonly property real fitZoom: Viewport.fitZoom(imageSize, shownCrop, realSize, pixelRatio, scale, cropping)

    readonly property bool hasResult: !imageDataUtils.isEmpty(procResult.image)
    readonly property bool isCovered: hasResult && imageUtils.doesRectCoverRect(procResult.requestRoi, boundingRect)
    readonly property bool panningOffProcessedArea: hasResult && !isCovered
    readonly property bool isOfThisImage: procResult.filepath === currentImage
    readonly property bool showOriginal: showOriginalWanted || cropping || (procResult.scale ?? 1) !== scale || !isOfThisImage || panningOffProcessedArea
    readonly property bool previewShown: isCovered && !showOriginal

    // The output's size is about to change: hold what is seen.
    signal scaleChanging(real previous, real next)

    function enhanceScale(controls: var): real {
        const enhance = controls["Enhance"];
        return enhance?.enabled ? enhance.params?.scale ?? 1 : 1;
    }

    onCurrentImageChanged: _private.setScale(1)
    onProcResultChanged: {
        if (isOfThisImage && hasResult)
            _private.setScale(procResult.scale ?? 1);
    }
    onCurrentControlsChanged: _private.setScale(enhanceScale(currentControls))

    readonly property QtObject _private: QtObject {
        id: _private

        property real currentScale: 1

        function setScale(next: real): void {
            const previous = currentScale;
            if (!(next > 0) || next === previous)
                return;
            currentScale = next;
            _top.scaleChanging(previous, next);
        }
    }
}
