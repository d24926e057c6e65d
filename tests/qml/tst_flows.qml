import QtQuick
import QtTest
import TImageSettings
import imageenhance

TestCase {
    id: _case

    name: "Flows"

    property bool exporting: false
    property bool imageOpen: true
    property var log: []

    FakeEngine {
        id: engine
    }
    FakeControls {
        id: controls
    }
    QtObject {
        id: settings
        property rect windowGeometry
    }
    QtObject {
        id: osUtils
        function geometry(): rect {
            return Qt.rect(10, 20, 1300, 800);
        }
    }
    QtObject {
        id: scheduler
        function procFull(): void {
            _case.log.push("full");
        }
        function procCurrentRoi(): void {
            _case.log.push("roi");
        }
    }
    AutopilotRun {
        id: autopilot
        engine: engine
        controls: controls
        scheduler: scheduler
        exporting: _case.exporting
        faceDetection: "auto"
        subjectType: "none"
        onLanded: _case.log.push("landed")
        onStepsChosen: steps => _case.log.push(steps)
    }
    InitialFilters {
        id: filters
        controls: controls
        recommendFilters: true
    }
    ClosingFlow {
        id: closing
        controls: controls
        engine: engine
        onAskToClose: _case.log.push("ask")
    }
    ClosingSeveralFlow {
        id: several
        controls: controls
        onAskToCloseSelected: _case.log.push("ask")
        onAskToCloseAll: _case.log.push("ask")
    }
    QuitFlow {
        id: quit
        imageOpen: _case.imageOpen
        settings: settings
        osUtils: osUtils
        onAskToQuit: _case.log.push("ask")
        onCloseWindow: _case.log.push("close")
        onLeaving: _case.log.push("leaving")
    }

    function init(): void {
        exporting = false;
        imageOpen = true;
        controls.loadedImages = ["/a.jpg", "/b.jpg"];
        controls.selectedImages = [0];
        controls.currentIndex = 0;
        controls.modified = ["/a.jpg", "/b.jpg"];
        controls.justSaved = [];
        controls.filterOrder = ["Denoise"];
        controls.isRaw = false;
        controls.currentControls = { autoPilot: TImageSettings.On };
        engine.inputImage = { uid: "/a.jpg#1" };
        closing.cancel();
        several.cancel();
        controls.calls = [];
        engine.calls = [];
        log = [];
    }

    // Autopilot

    function test_new_picture_starts_a_run(): void {
        autopilot.setupImage();
        compare(engine.calls, ["cancel", { uid: "/a.jpg#1", options: { regenerateMask: true } }]);
        compare(controls.currentControls.autoPilot, TImageSettings.Processing);
    }

    function test_no_run_data(): var {
        return [
            { tag: "switched off", status: TImageSettings.Off, uid: "/a.jpg#1", exporting: false, full: 0 },
            { tag: "switched off, exporting", status: TImageSettings.Off, uid: "/a.jpg#1", exporting: true, full: 1 },
            { tag: "no picture", status: TImageSettings.On, uid: undefined, exporting: false, full: 0 }
        ];
    }

    function test_no_run(row): void {
        engine.inputImage = { uid: row.uid };
        controls.currentControls = { autoPilot: row.status };
        exporting = row.exporting;
        autopilot.setupImage();
        compare(engine.calls.length, 0);
        compare(log.length, row.full);
    }

    function test_answers_data(): var {
        return [
            { tag: "of the image shown", uid: "/a.jpg#1", landed: true },
            { tag: "of an earlier load", uid: "/a.jpg#0", landed: false },
            { tag: "of the image left behind", uid: "/a.jpg#1", index: 1, landed: false }
        ];
    }

    function test_answers(row): void {
        controls.currentIndex = row.index ?? 0;
        autopilot.finished(row.uid, { Denoise: { enabled: true } });
        compare(log.includes("landed"), row.landed);
        compare(controls.calls.length, row.landed ? 2 : 0);
    }

    function test_steps_follow_the_settings(): void {
        compare(autopilot.stepsOfNewImage(), ["loading", "params", "final", "faces"]);
    }

    function test_first_filters_data(): var {
        return [
            { tag: "recommended", controls: {}, order: ["Denoise", "Sharpen", "Enhance"], applied: true },
            { tag: "visited before", controls: { initialFiltersApplied: true }, order: ["Denoise"], applied: false },
            { tag: "asked for by hand", controls: { initialFiltersApplied: true, applyAutopilotOnceCalculated: true }, order: ["Denoise", "Sharpen", "Enhance"], applied: true },
            { tag: "not recommended", off: true, controls: {}, order: ["Denoise"], applied: false },
            { tag: "not recommended, RAW", off: true, raw: true, controls: {}, order: ["RAW"], applied: false }
        ];
    }

    function test_first_filters(row): void {
        filters.recommendFilters = !row.off;
        controls.isRaw = row.raw === true;
        controls.currentControls = row.controls;
        filters.load();
        compare(controls.calls.filter(call => call.order).length, 1, "one order, and so one run");
        compare(controls.filterOrder, row.order);
        compare(controls.calls.includes("apply"), row.applied);
        verify(controls.calls.includes("marked"));
        verify(!filters.addingFilter);
    }

    // Closing and quitting

    function test_closing_asks_only_for_changes_data(): var {
        return [
            { tag: "changed", asks: true },
            { tag: "as Autopilot left it", modified: [], asks: false },
            { tag: "just saved", justSaved: ["/a.jpg"], asks: false },
            { tag: "no filters", order: [], asks: false }
        ];
    }

    function test_closing_asks_only_for_changes(row): void {
        controls.modified = row.modified ?? controls.modified;
        controls.justSaved = row.justSaved ?? [];
        controls.filterOrder = row.order ?? controls.filterOrder;
        closing.closeImage(0);
        compare(log, row.asks ? ["ask"] : []);
        compare(controls.loadedImages.length, row.asks ? 2 : 1);
    }

    function test_closing_after_the_question(): void {
        closing.closeImage(0);
        closing.cancel();
        closing.confirm();
        compare(controls.loadedImages.length, 2, "an answer without a question");
        closing.closeImage(0);
        closing.closeImage(1);
        compare(log, ["ask", "ask", "ask"]);
        closing.confirm();
        compare(controls.loadedImages, ["/a.jpg"], "the last one asked about");
        closing.closeImage(0);
        compare(log.length, 4, "a confirmation counts once");
        closing.closeImage(7);
        closing.closeImage(-1);
        compare(log.length, 4);
    }

    function test_closing_several_data(): var {
        return [
            { tag: "some", selected: [0], close: () => several.closeSelectedImages(), call: "closeSelected" },
            { tag: "all selected", selected: [0, 1], close: () => several.closeSelectedImages(), call: "reset" },
            { tag: "all", selected: [0], close: () => several.closeAllImages(), call: "reset" }
        ];
    }

    function test_closing_several(row): void {
        controls.selectedImages = row.selected;
        row.close();
        several.cancel();
        several.confirm();
        compare(controls.calls, []);
        row.close();
        compare(log, ["ask", "ask"]);
        several.confirm();
        several.confirm();
        compare(controls.calls, [row.call]);
    }

    function test_quitting(): void {
        quit.imagesOpened();
        verify(!quit.mayClose());
        compare(settings.windowGeometry, Qt.rect(10, 20, 1300, 800), "kept though refused");
        quit.confirm();
        compare(log, ["ask", "close"]);
        verify(quit.mayClose());
        compare(log[2], "leaving");
        quit.imagesOpened();
        verify(!quit.mayClose());
        quit.exportFinished();
        verify(quit.mayClose());
        quit.imagesOpened();
        imageOpen = false;
        verify(quit.mayClose(), "nothing to lose");
    }
}
