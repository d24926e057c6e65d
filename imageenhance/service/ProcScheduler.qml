import QtQuick
import "../utils/viewport.mjs" as Viewport

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
        const roi = _top.preview.procRoi;
        const why = _private.shutGate(roi);
        if (why !== "") {
            console.info(why);
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
        const region = Viewport.movedInside(_top.imageUtils.getBoundingRect(crop, _top.cropRotation * 180 / Math.PI), size);
        _top.engine.procRequest(Qt.rect(region.x, region.y, region.width, region.height), _top.controls.filterOrder);
    }

    // A change of settings may change the view, which tells a turn of the event loop later: one run for both.
    function requestFrom(cause: string): void {
        console.info("[PROC] Proc requested from " + cause);
        _private.runAfter(2);
    }

    // The view came to rest on another region.
    function viewChanged(roi: rect): void {
        if (_top.preview.moving || !_top.imageOpen || _top.exporting || roi.width <= 0 || roi.height <= 0 || _top.panelAnimating)
            return;
        console.info("[PROC] Proc requested from request proc");
        _private.runAfter(1);
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
        property int turnsLeft: 0 // of the event loop until a run

        function runAfter(turns: int): void {
            turnsLeft = Math.max(turnsLeft, turns);
            Qt.callLater(_private.nextTurn);
        }

        function nextTurn(): void {
            if (--turnsLeft > 0)
                Qt.callLater(_private.nextTurn);
            else
                _top.procCurrentRoi();
        }

        // Why nothing is to be run now, in the words of the log; empty when all gates are open.
        function shutGate(roi: rect): string {
            if (_top.loading)
                return "[PROC] Ignoring proc call while running loading image";
            if (_top.autopilotRunning)
                return "[PROC] Ignoring proc call while running AP";
            if (_top.exporting)
                return "[PROC] Ignoring proc call while exporting";
            const current = _top.controls.currentControls;
            if (skipsOnce(current))
                return "Skipping proc due to update flag on Enhance";
            if (isCovered(roi, current.changesCount))
                return "Skipping proc due to previous proc already covering new roi";
            // The image may have gone since the call was deferred.
            if (!_top.imageOpen || roi.width <= 0 || roi.height <= 0)
                return "[PROC] Ignoring proc call without an image";
            return "";
        }

        // By the last result, of this image and these settings.
        function isCovered(roi: rect, changesCount: int): bool {
            const last = _top.engine.procResult;
            if (!last.requestUid || last.filepath !== _top.controls.currentImage || last.changesCount !== changesCount)
                return false;
            return _top.imageUtils.doesRectCoverRect(last.requestRoi, roi);
        }

        // The resolution controls set this flag to change values without a run.
        function skipsOnce(current: var): bool {
            const params = current["Enhance"]?.params;
            if (!params?.updated)
                return false;
            _top.controls.setParams("Enhance", Object.assign({}, params, {
                "updated": false
            }));
            return true;
        }
    }
}
