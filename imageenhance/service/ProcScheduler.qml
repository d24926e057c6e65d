import QtQuick
import "../utils/viewport.mjs" as Viewport
import imageenhance

// Decides when the engine runs on what is seen. Listens to all that may call for a run; Qt.callLater folds them into
// one request, and the gates of procCurrentRoi drop what would show nothing new or disturb something else.
QtObject {
    id: _top

    required property ImageProcessor engine
    required property ImagePreview preview
    required property RightPanel panel
    required property WindowState windowState
    required property bool addingFilter

    readonly property bool mousePressed: windowState.helpers.mouseListener.isMousePressed
    readonly property alias queuedProc: _private.queuedProc
    // When set, the next change of the preview's region asks for a run.
    property bool procAfterRoiUpdated: false

    onMousePressedChanged: {
        if (mousePressed || !_private.queuedProc)
            return;
        _private.queuedProc = false;
        engine.paramsChanged();
    }

    // The one entry point for runs on what is seen.
    function procCurrentRoi(): void {
        const roi = _top.preview.procRoi;
        const why = _private.closedGate(roi);
        if (why !== "") {
            console.info(why);
            return;
        }
        console.info("[PROC] Cancelling old proc due to new request");
        _top.engine.cancelProc();
        console.info("[PROC] Starting proc");
        _top.engine.procRequest(roi, _top.windowState.controls.filterOrder);
    }

    // The whole cropped image, for an export. The engine ends a run that is under way, as for every request.
    function procFull(): void {
        const helpers = _top.windowState.helpers;
        const size = helpers.imageDataUtils.imageSize(_top.engine.inputImage.image);
        const part = _top.windowState.currentCropRect;
        const crop = Qt.rect(part.x * size.width, part.y * size.height, part.width * size.width, part.height * size.height);
        const bounds = helpers.imageUtils.getBoundingRect(crop, _top.windowState.currentRotation * 180 / Math.PI);
        const region = Viewport.movedInside(bounds, size);
        _top.engine.procRequest(Qt.rect(region.x, region.y, region.width, region.height), _top.windowState.controls.filterOrder);
    }

    readonly property Connections _ofEngine: Connections {
        target: _top.engine

        function onParamsChanged(): void {
            if (!_top.preview.beforeImage)
                return;
            if (_top.addingFilter) {
                console.info("[PROC] Proc ignored while adding filter");
                return;
            }
            if (_top.windowState.isEditingSubject || _top.windowState.isSelectingText) {
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
                _private.requestFrom("params changed", 2);
        }

        function onProcResultChanged(): void {
            console.info("[PROC] Proc finished");
        }
    }

    readonly property Connections _ofPreview: Connections {
        target: _top.preview

        // The view came to rest on another region.
        function onRequestProc(roi: rect): void {
            const state = _top.windowState;
            if (!_top.preview.moving && state.imageOpen && !state.isExporting && roi.width > 0 && roi.height > 0 && !_top.panel.animating)
                _private.requestFrom("request proc", 1);
        }

        function onProcRoiChanged(): void {
            if (!_top.procAfterRoiUpdated)
                return;
            _top.procAfterRoiUpdated = false;
            _private.requestFrom("proc ROI changed", 2);
        }
    }

    readonly property Connections _ofControls: Connections {
        target: _top.windowState.controls

        function onFilterOrderChanged(): void {
            _private.requestFrom("right panel", 2);
        }
    }

    readonly property Connections _ofPanel: Connections {
        target: _top.panel

        function onEditModeChanged(): void {
            _private.requestFrom("edit mode changed", 2);
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property bool queuedProc: false
        property int turnsLeft: 0 // of the event loop until a run

        // A change of settings may change the view, which reports it a turn of the event loop later: with two turns to
        // wait both make one run.
        function requestFrom(cause: string, turns: int): void {
            console.info("[PROC] Proc requested from " + cause);
            turnsLeft = Math.max(turnsLeft, turns);
            Qt.callLater(_private.nextTurn);
        }

        function nextTurn(): void {
            if (--turnsLeft > 0)
                Qt.callLater(_private.nextTurn);
            else
                _top.procCurrentRoi();
        }

        // Why nothing is to be run now, as the log says it; empty when all gates are open.
        function closedGate(roi: rect): string {
            if (_top.windowState.isLoading)
                return "[PROC] Ignoring proc call while running loading image";
            if (_top.windowState.autopilotRunning)
                return "[PROC] Ignoring proc call while running AP";
            if (_top.windowState.isExporting)
                return "[PROC] Ignoring proc call while exporting";
            // The release asks for a run of its own.
            if (queuedProc)
                return "[PROC] Ignoring proc call while a slider is held";
            const current = _top.windowState.controls.currentControls;
            if (skipsOnce(current))
                return "Skipping proc due to update flag on Enhance";
            if (isCovered(roi, current.changesCount))
                return "Skipping proc due to previous proc already covering new roi";
            // The image may have gone since the call was deferred.
            if (!_top.windowState.imageOpen || roi.width <= 0 || roi.height <= 0)
                return "[PROC] Ignoring proc call without an image";
            return "";
        }

        // By the last result, of this image and these settings.
        function isCovered(roi: rect, changesCount: int): bool {
            const last = _top.engine.procResult;
            if (!last.requestUid || last.filepath !== _top.windowState.controls.currentImage || last.changesCount !== changesCount)
                return false;
            return _top.windowState.helpers.imageUtils.doesRectCoverRect(last.requestRoi, roi);
        }

        // The resolution controls set this flag to change values without a run.
        function skipsOnce(current: var): bool {
            const controls = _top.windowState.controls;
            const params = current[controls.categories.enhance]?.params;
            if (!params?.updated)
                return false;
            controls.setParams(controls.categories.enhance, Object.assign({}, params, {
                "updated": false
            }));
            return true;
        }
    }
}
