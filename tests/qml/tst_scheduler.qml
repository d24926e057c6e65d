import QtQuick
import QtTest
import Testing
import TImageSettings
import imageenhance

WindowParts {
    id: parts

    name: "ProcScheduler"
    when: windowShown
    visible: true

    LogLines {
        id: lines
    }

    function initTestCase(): void {
        parts.helpers.mouseListener.listenTo(parts.Window.window);
    }

    function init(): void {
        seenWidth = 800;
        parts.open(["/a.jpg"]);
    }

    function change(): void {
        parts.controls.setParam("Denoise", "strength", Math.random());
    }

    // Another size of the output changes the region that is seen, which the preview tells a turn later.
    function test_settings_that_change_the_view_make_one_request(): void {
        parts.controls.setParams("Enhance", { enabled: true, params: { scale: 2 } });
        const runs = parts.runs();
        compare(runs.map(run => run.region), [parts.preview.procRoi]);
        compare(runs[0].params.Enhance.params.scale, 2);
    }

    function test_burst_makes_one_request(): void {
        for (let i = 0; i < 20; ++i) {
            change();
            parts.preview.requestProc(parts.preview.procRoi);
            parts.controls.setFilterOrder(["Denoise"]);
        }
        verify(!parts.engine.processing);
        const runs = parts.runs();
        compare(runs.map(run => run.region), [parts.preview.procRoi]);
        compare(runs[0].order, ["Denoise"]);
        compare(runs[0].params.changesCount, parts.controls.currentControls.changesCount);
    }

    function test_new_run_ends_the_one_before(): void {
        parts.backends.hold(["runs"]);
        change();
        tryVerify(() => parts.engine.processing, 60000);
        change();
        tryVerify(() => parts.cancelled === 1, 60000);
        parts.backends.hold([]);
        parts.settle();
        compare([parts.answers, parts.engine.procResult.changesCount], [2, parts.controls.currentControls.changesCount]);
    }

    function test_only_what_the_last_result_does_not_cover_is_run(): void {
        parts.pipeline.scheduler.procCurrentRoi();
        compare(parts.runs().length, 0, "covered");
        parts.preview.zoomIn();
        compare(parts.runs().length, 0, "a part of it");
        parts.preview.zoomToFit();
        compare(parts.runs().length, 1, "beyond the last region");
        parts.preview.resetZoom();
        compare(parts.runs().length, 1, "within the new one");
        change();
        compare(parts.runs().length, 2, "covered, but older settings");
        parts.open(["/a.jpg", "/b.jpg"]);
        const before = parts.engine.procResult;
        parts.controls.setCurrentIndex(1);
        compare(parts.runs().map(run => run.path), ["/b.jpg"], "covered, but of another image");
        compare([before.changesCount, before.requestRoi], [parts.engine.procResult.changesCount, parts.engine.procResult.requestRoi]);
    }

    // All of them are shut; each that opens leaves the word to the next.
    function test_gates_speak_in_their_order(): void {
        parts.backends.hold(["reads", "analyses"]);
        parts.windowState.isExporting = true;
        parts.controls.setParams("Enhance", { updated: true });
        parts.controls.setAutoPilotStatus(TImageSettings.Processing);
        parts.reader.reload();
        const gates = [
            { line: "[PROC] Ignoring proc call while running loading image", open: () => { parts.backends.hold(["analyses"]); tryVerify(() => !parts.reader.loading, 60000); } },
            { line: "[PROC] Ignoring proc call while running AP", open: () => { parts.backends.hold([]); parts.settle(); } },
            { line: "[PROC] Ignoring proc call while exporting", open: () => { parts.seenWidth = 0; parts.windowState.isExporting = false; } },
            { line: "Skipping proc due to update flag on Enhance", open: () => { parts.seenWidth = 800; parts.settle(); parts.seenWidth = 0; } },
            { line: "Skipping proc due to previous proc already covering new roi", open: () => change() },
            { line: "[PROC] Ignoring proc call without an image", open: () => parts.seenWidth = 800 },
            { line: "[PROC] Cancelling old proc due to new request,[PROC] Starting proc" }
        ];
        for (const gate of gates) {
            verify(!parts.engine.processing);
            lines.begin();
            parts.pipeline.scheduler.procCurrentRoi();
            compare(lines.end().join(","), gate.line);
            gate.open?.();
        }
        verify(parts.engine.processing);
    }

    function test_drag_of_a_slider_makes_one_request_at_release(): void {
        const scheduler = parts.pipeline.scheduler;
        mousePress(parts, 880, 680);
        for (let i = 0; i < 10; ++i) {
            change();
            wait(0);
        }
        scheduler.procCurrentRoi(); // the view has come to rest meanwhile
        compare(parts.runs().length, 0);
        verify(scheduler.queuedProc);
        mouseRelease(parts, 880, 680);
        compare(parts.runs().length, 1);
        verify(!scheduler.queuedProc);
        mouseClick(parts, 880, 680);
        compare(parts.runs().length, 1, "a click that changed nothing asks for nothing");
    }

    function test_update_flag_swallows_one_request(): void {
        parts.makeStale();
        parts.originalKeyHeld = true;
        parts.controls.setParams("Enhance", { updated: true, p: 2 });
        parts.settle();
        parts.pipeline.scheduler.procCurrentRoi();
        verify(!parts.engine.processing);
        compare(parts.controls.currentControls.Enhance.params, { updated: false, p: 2 });
        parts.pipeline.scheduler.procCurrentRoi();
        compare(parts.runs().length, 1);
    }

    // Changed settings, or a changed view that shows older ones.
    function test_what_asks_for_a_run_data(): var {
        return [
            { tag: "settings", settings: true, asks: true },
            { tag: "mask being edited", settings: true, set: () => parts.editMode = EditMode.Subject },
            { tag: "text being selected", settings: true, set: () => parts.editMode = EditMode.Text },
            { tag: "original shown", settings: true, set: () => parts.originalKeyHeld = true },
            { tag: "no picture", settings: true, set: () => parts.windowState.isSaving = true },
            { tag: "nothing seen", settings: true, set: () => parts.seenWidth = 0 },
            { tag: "view", asks: true },
            { tag: "view still moving", set: () => mousePress(parts.preview, 400, 300) },
            { tag: "view without an image", set: () => parts.controls.reset() },
            { tag: "panel moves", set: () => { parts.settings.rightPanelCollapsed = true; tryVerify(() => parts.panel.animating, 60000); } },
            { tag: "empty view", roi: Qt.rect(5, 5, 0, 40) }
        ];
    }

    function test_what_asks_for_a_run(row): void {
        const roi = row.roi ?? parts.preview.procRoi;
        parts.makeStale();
        row.set?.();
        if (row.settings) {
            parts.settle();
            parts.forget();
            change();
        } else {
            parts.preview.requestProc(roi);
        }
        parts.turns();
        compare(parts.answers > 0 || parts.engine.processing, row.asks === true);
        mouseRelease(parts.preview, 400, 300);
        parts.settings.rightPanelCollapsed = false;
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

    // An image shown already is exported from what is loaded. Regions are of whole pixels: one more is no fault.
    function test_whole_crop_stays_inside(row): void {
        parts.controls.setCrop(row.crop, row.degrees * Math.PI / 180);
        parts.windowState.isExporting = true;
        parts.settle();
        parts.forget();
        parts.controls.setCurrentIndex(0, true);
        const runs = parts.runs();
        compare([runs.length, runs[0].exporting], [1, true]);
        const region = runs[0].region;
        verify(parts.helpers.imageUtils.doesRectCoverRect(region, row.bounds) && region.width <= row.bounds.width + 1 && region.height <= row.bounds.height + 1, region);
    }
}
