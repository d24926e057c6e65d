import QtQuick
import QtTest
import LogLines
import imageenhance

TestCase {
    id: _case

    name: "ProcScheduler"

    property bool loading: false
    property bool autopilotRunning: false
    property bool exporting: false
    property bool imageOpen: true
    property bool animating: false
    property bool adding: false
    property bool masking: false
    property bool pressed: false
    property rect crop: Qt.rect(0, 0, 1, 1)
    property real rotation: 0

    LogLines {
        id: log
    }
    FakeEngine {
        id: engine
        onParamsChanged: scheduler.paramsChanged()
    }
    FakeControls {
        id: controls
    }
    QtObject {
        id: preview
        property rect procRoi: Qt.rect(0, 0, 400, 300)
        property bool moving: false
        property var beforeImage: ({})
        property bool beforeImageEmpty: false
        property bool showBefore: false
    }
    QtObject {
        id: utils
        function doesRectCoverRect(outer: rect, inner: rect): bool {
            return outer.x <= inner.x && outer.y <= inner.y && outer.x + outer.width >= inner.x + inner.width && outer.y + outer.height >= inner.y + inner.height;
        }
        function getBoundingRect(r: rect, degrees: real): rect {
            const angle = degrees * Math.PI / 180;
            const width = Math.abs(r.width * Math.cos(angle)) + Math.abs(r.height * Math.sin(angle));
            const height = Math.abs(r.width * Math.sin(angle)) + Math.abs(r.height * Math.cos(angle));
            return Qt.rect(r.x + (r.width - width) / 2, r.y + (r.height - height) / 2, width, height);
        }
        function imageSize(image: var): size {
            return Qt.size(1000, 800);
        }
    }
    ProcScheduler {
        id: scheduler
        engine: engine
        controls: controls
        imageUtils: utils
        imageDataUtils: utils
        preview: preview
        loading: _case.loading
        autopilotRunning: _case.autopilotRunning
        exporting: _case.exporting
        imageOpen: _case.imageOpen
        panelAnimating: _case.animating
        addingFilter: _case.adding
        editingMask: _case.masking
        mousePressed: _case.pressed
        cropRect: _case.crop
        cropRotation: _case.rotation
    }

    function init(): void {
        for (const flag of ["loading", "autopilotRunning", "exporting", "animating", "adding", "masking", "pressed"])
            _case[flag] = false;
        imageOpen = true;
        crop = Qt.rect(0, 0, 1, 1);
        rotation = 0;
        preview.procRoi = Qt.rect(0, 0, 400, 300);
        preview.moving = false;
        preview.beforeImage = {};
        preview.showBefore = false;
        controls.currentControls = { changesCount: 1 };
        controls.calls = [];
        engine.procResult = { requestUid: 0 };
        settle();
        engine.calls = [];
    }

    // Until all that was deferred has happened: each link of the chain is deferred in the turn of the one before.
    function settle(): void {
        let turns = 0;
        const next = () => {
            if (++turns < 6)
                Qt.callLater(() => next());
        };
        next();
        tryVerify(() => turns === 6, 60000);
    }

    // Another size of the output changes the region that is seen, which the preview tells a turn later.
    function test_settings_that_change_the_view_make_one_request(): void {
        engine.paramsChanged();
        Qt.callLater(() => {
            preview.procRoi = Qt.rect(0, 0, 200, 150);
            scheduler.viewChanged(preview.procRoi);
        });
        settle();
        compare(engine.requests().map(call => call.roi), [Qt.rect(0, 0, 200, 150)]);
    }

    function test_burst_makes_one_request(): void {
        for (let i = 0; i < 20; ++i) {
            engine.paramsChanged();
            scheduler.viewChanged(preview.procRoi);
            scheduler.requestFrom("right panel");
        }
        compare(engine.calls.length, 0);
        _case.settle();
        compare(engine.calls.length, 2);
        compare(engine.calls[0], "cancel");
        compare(engine.calls[1].roi, preview.procRoi);
        compare(engine.calls[1].order, ["Denoise"]);
    }

    function test_gates_data(): var {
        const covered = { requestUid: 7, changesCount: 1, requestRoi: Qt.rect(0, 0, 500, 500), filepath: "/a.jpg" };
        return [
            { tag: "open", requests: 1 },
            { tag: "loading", flag: "loading", requests: 0 },
            { tag: "Autopilot runs", flag: "autopilotRunning", requests: 0 },
            { tag: "exporting", flag: "exporting", requests: 0 },
            { tag: "the last image went", closed: true, requests: 0 },
            { tag: "covered", result: covered, requests: 0 },
            { tag: "covered, but older settings", result: Object.assign({}, covered, { changesCount: 0 }), requests: 1 },
            { tag: "beyond the last region", result: Object.assign({}, covered, { requestRoi: Qt.rect(10, 0, 500, 500) }), requests: 1 },
            { tag: "covered, but of another image", result: Object.assign({}, covered, { filepath: "/b.jpg" }), requests: 1 },
            { tag: "no result yet", result: Object.assign({}, covered, { requestUid: 0 }), requests: 1 }
        ];
    }

    function test_gates(row): void {
        if (row.flag)
            _case[row.flag] = true;
        imageOpen = !row.closed;
        if (row.result)
            engine.procResult = row.result;
        scheduler.procCurrentRoi();
        compare(engine.requests().length, row.requests);
        compare(engine.calls.includes("cancel"), row.requests > 0);
    }

    // All of them are shut; each that opens leaves the word to the next.
    function test_gates_speak_in_their_order(): void {
        loading = autopilotRunning = exporting = true;
        imageOpen = false;
        controls.currentControls = { changesCount: 1, Enhance: { params: { updated: true } } };
        engine.procResult = { requestUid: 7, changesCount: 1, requestRoi: Qt.rect(0, 0, 500, 500), filepath: "/a.jpg" };
        const gates = [
            { line: "[PROC] Ignoring proc call while running loading image", open: () => _case.loading = false },
            { line: "[PROC] Ignoring proc call while running AP", open: () => _case.autopilotRunning = false },
            { line: "[PROC] Ignoring proc call while exporting", open: () => _case.exporting = false },
            { line: "Skipping proc due to update flag on Enhance", open: () => controls.currentControls = { changesCount: 1 } },
            { line: "Skipping proc due to previous proc already covering new roi", open: () => engine.procResult = { requestUid: 0 } },
            { line: "[PROC] Ignoring proc call without an image", open: () => _case.imageOpen = true },
            { line: "[PROC] Cancelling old proc due to new request,[PROC] Starting proc" }
        ];
        for (const gate of gates) {
            compare(engine.calls.length, 0);
            log.begin();
            scheduler.procCurrentRoi();
            compare(log.end().join(","), gate.line);
            gate.open?.();
        }
        compare(engine.requests().length, 1);
    }

    function test_drag_of_a_slider_makes_one_request_at_release(): void {
        pressed = true;
        for (let i = 0; i < 10; ++i) {
            engine.paramsChanged();
            wait(0);
        }
        compare(engine.calls.length, 0);
        verify(scheduler.queuedProc);
        pressed = false;
        settle();
        compare(engine.requests().length, 1);
        verify(!scheduler.queuedProc);
        pressed = true;
        pressed = false;
        settle();
        compare(engine.requests().length, 1, "a click that changed nothing asks for nothing");
    }

    function test_update_flag_swallows_one_request(): void {
        controls.currentControls = { changesCount: 1, Enhance: { enabled: true, params: { updated: true, scale: 2 } } };
        scheduler.procCurrentRoi();
        compare(engine.calls.length, 0);
        compare(controls.calls[0].setParams, "Enhance");
        compare(controls.calls[0].params, { updated: false, scale: 2 });
        controls.currentControls = { changesCount: 1, Enhance: { enabled: true, params: controls.calls[0].params } };
        scheduler.procCurrentRoi();
        compare(engine.requests().length, 1);
    }

    function test_changed_settings_that_ask_for_nothing_data(): var {
        return [
            { tag: "filter being added", set: () => _case.adding = true },
            { tag: "mask being edited", set: () => _case.masking = true },
            { tag: "original shown", set: () => preview.showBefore = true },
            { tag: "no picture", set: () => preview.beforeImage = null },
            { tag: "nothing seen", set: () => preview.procRoi = Qt.rect(0, 0, 0, 0) }
        ];
    }

    function test_changed_settings_that_ask_for_nothing(row): void {
        row.set();
        engine.paramsChanged();
        settle();
        compare(engine.calls.length, 0);
    }

    function test_changed_view_that_asks_for_nothing_data(): var {
        return [
            { tag: "still moving", set: () => preview.moving = true },
            { tag: "no image", set: () => _case.imageOpen = false },
            { tag: "panel moves", set: () => _case.animating = true },
            { tag: "empty region", roi: Qt.rect(5, 5, 0, 40) }
        ];
    }

    function test_changed_view_that_asks_for_nothing(row): void {
        row.set?.();
        scheduler.viewChanged(row.roi ?? preview.procRoi);
        settle();
        compare(engine.calls.length, 0);
    }

    function test_whole_crop_stays_inside_data(): var {
        return [
            { tag: "whole image", crop: Qt.rect(0, 0, 1, 1), degrees: 0, bounds: Qt.rect(0, 0, 1000, 800) },
            { tag: "part", crop: Qt.rect(0.5, 0.25, 0.25, 0.5), degrees: 0, bounds: Qt.rect(500, 200, 250, 400) },
            { tag: "turned at the left edge", crop: Qt.rect(0, 0.25, 0.1, 0.5), degrees: 90, bounds: Qt.rect(0, 350, 400, 100) },
            { tag: "turned at the right edge", crop: Qt.rect(0.9, 0.25, 0.1, 0.5), degrees: 90, bounds: Qt.rect(600, 350, 400, 100) },
            { tag: "turned, larger than the image", crop: Qt.rect(0, 0, 1, 1), degrees: 90, bounds: Qt.rect(100, 0, 800, 800) }
        ];
    }

    function test_whole_crop_stays_inside(row): void {
        crop = row.crop;
        rotation = row.degrees * Math.PI / 180;
        scheduler.procFull();
        compare(engine.calls.length, 1, "an export's run cancels nothing");
        const roi = engine.calls[0].roi;
        for (const side of ["x", "y", "width", "height"])
            fuzzyCompare(roi[side], row.bounds[side], 0.001, side);
    }
}
