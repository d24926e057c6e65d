import QtQuick

// Decides when the engine runs on what is seen. Many causes ask; Qt.callLater folds them into one request, and the
// gates of procCurrentRoi drop what would show nothing new or disturb something else.
QtObject {
    id: _top

    required property var engine // TEngineController
    required property var controls // TControls
    required property var imageUtils // TImageUtils
    required property var imageDataUtils // ImageDataUtils
    // What the preview tells: procRoi, moving, beforeImage, showBefore.
    required property var preview

    required property bool loading
    required property bool autopilotRunning
    required property bool exporting
    required property bool imageOpen
    required property bool panelAnimating
    required property bool addingFilter
    required property bool editingMask
    required property bool mousePressed
    required property rect cropRect // fractions of the image
    required property real cropRotation // radians

    readonly property bool queuedProc: _private.queuedProc
    // When set, the next change of the preview's region asks for a run.
    property bool procAfterRoiUpdated: false

    onMousePressedChanged: {
        if (_top.mousePressed || !_private.queuedProc)
            return;
        _private.queuedProc = false;
        _top.engine.paramsChanged();
    }

    // The one entry for runs on what is seen.
    function procCurrentRoi(): void {
        if (_top.loading) {
            console.info("[PROC] Ignoring proc call while running loading image");
            return;
        }
        if (_top.autopilotRunning) {
            console.info("[PROC] Ignoring proc call while running AP");
            return;
        }
        if (_top.exporting) {
            console.info("[PROC] Ignoring proc call while exporting");
            return;
        }
        // The image may have gone since the call was deferred.
        const roi = _top.preview.procRoi;
        if (!_top.imageOpen || roi.width <= 0 || roi.height <= 0) {
            console.info("[PROC] Ignoring proc call without an image");
            return;
        }
        const current = _top.controls.currentControls;
        if (_private.skipsOnce(current))
            return;
        const last = _top.engine.procResult;
        if (last.requestUid && last.changesCount === current.changesCount && _top.imageUtils.doesRectCoverRect(last.requestRoi, roi)) {
            console.info("Skipping proc due to previous proc already covering new roi");
            return;
        }
        console.info("[PROC] Cancelling old proc due to new request");
        _top.engine.cancelProc();
        console.info("[PROC] Starting proc");
        _top.engine.procRequest(roi, _top.controls.filterOrder);
    }

    // The whole cropped image, for an export. Cancels nothing.
    function procFull(): void {
        const size = _top.imageDataUtils.imageSize(_top.engine.inputImage.image);
        const crop = Qt.rect(_top.cropRect.x * size.width, _top.cropRect.y * size.height, _top.cropRect.width * size.width, _top.cropRect.height * size.height);
        const degrees = _top.cropRotation * 180 / Math.PI;
        const bounds = _top.imageUtils.getBoundingRect(crop, degrees);
        _top.engine.procRequest(_private.movedInside(bounds, size), _top.controls.filterOrder);
    }

    function requestFrom(cause: string): void {
        console.info("[PROC] Proc requested from " + cause);
        Qt.callLater(_top.procCurrentRoi);
    }

    // The view came to rest on another region.
    function viewChanged(roi: rect): void {
        if (_top.preview.moving || !_top.imageOpen || _top.exporting || roi.width <= 0 || roi.height <= 0 || _top.panelAnimating)
            return;
        _top.requestFrom("request proc");
    }

    function procRoiChanged(): void {
        if (!_top.procAfterRoiUpdated)
            return;
        _top.procAfterRoiUpdated = false;
        _top.requestFrom("proc ROI changed");
    }

    function paramsChanged(): void {
        if (!_top.preview.beforeImage)
            return;
        if (_top.addingFilter) {
            console.info("[PROC] Proc ignored while adding filter");
            return;
        }
        if (_top.editingMask) {
            console.info("[PROC] Ignoring proc call while masking");
            return;
        }
        if (_top.mousePressed) {
            console.info("[PROC] Proc likely requested from slider change");
            _private.queuedProc = true;
            return;
        }
        const roi = _top.preview.procRoi;
        if (!_top.preview.showBefore && !_top.preview.beforeImageEmpty && roi.width > 0 && roi.height > 0)
            _top.requestFrom("params changed");
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property bool queuedProc: false

        // The resolution controls set this flag to change values without a run.
        function skipsOnce(current: var): bool {
            const enhance = current["Enhance"];
            if (!enhance || !enhance.params || !enhance.params.updated)
                return false;
            console.info("Skipping proc due to update flag on Enhance");
            const params = Object.assign({}, enhance.params);
            params.updated = false;
            _top.controls.setParams("Enhance", params);
            return true;
        }

        function movedInside(bounds: rect, size: size): rect {
            const width = Math.min(bounds.width, size.width);
            const height = Math.min(bounds.height, size.height);
            const x = Math.min(Math.max(0, bounds.x), size.width - width);
            const y = Math.min(Math.max(0, bounds.y), size.height - height);
            return Qt.rect(x, y, width, height);
        }
    }
}
