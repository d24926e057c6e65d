import QtQuick
import QtTest
import TImageSettings
import imageenhance

WindowParts {
    id: parts

    name: "Flows"

    ClosingFlow {
        id: closing
        controls: parts.controls
        engine: parts.engine
        onAskToClose: parts.log.push("ask")
    }
    ClosingSeveralFlow {
        id: several
        controls: parts.controls
        onAskToCloseSelected: parts.log.push("ask")
        onAskToCloseAll: parts.log.push("ask")
    }
    QuitFlow {
        id: quit
        imageOpen: parts.windowState.imageOpen
        settings: parts.settings
        osUtils: parts.helpers.osUtils
        onAskToQuit: parts.log.push("ask")
        onCloseWindow: parts.log.push("close")
        onLeaving: parts.log.push("leaving")
    }

    function initTestCase(): void {
        parts.settings.autopilotRecommendFilters = true;
        parts.settings.autopilotFaceDetect = "auto";
        parts.settings.autopilotSubjectType = "none";
        parts.backends.advise({ Sharpen: { enabled: true, p: 1 }, Denoise: { enabled: true, p: 1 }, Enhance: { enabled: false } });
    }

    function init(): void {
        parts.open(["/a.jpg", "/b.jpg"]);
        parts.controls.selectedImages = [0];
        closing.cancel();
        several.cancel();
    }

    // From a path to a picture

    function test_picture_is_read_analysed_given_filters_and_run_once(): void {
        parts.open([]);
        compare(parts.pipeline.autopilot.stepsOfNewImage(), ["loading", "params", "final", "faces"]);
        parts.backends.addFile("/new.jpg", 1000, 800);
        parts.backends.hold(["analyses"]);
        parts.controls.loadImages(["/new.jpg"]);
        tryVerify(() => parts.backends.analyses().length === 1, 60000);
        compare(parts.windowState.autopilotRunning, true);
        compare(parts.backends.analyses(), [{ uid: parts.engine.inputImage.uid, regenerateMask: true, forceFaceDetect: false }]);
        parts.backends.hold([]);
        const runs = parts.runs();
        compare(runs.map(run => [run.path, run.order, run.region]), [["/new.jpg", ["Denoise", "Sharpen"], parts.preview.procRoi]]);
        compare(runs[0].params.Sharpen.params, { p: 1 });
        compare(parts.controls.currentControls.autoPilot, TImageSettings.On);
        parts.forget();
        parts.controls.setFilterOrder(["Sharpen"]);
        parts.controls.setCurrentIndex(0, true);
        parts.reader.reload();
        const again = parts.runs();
        compare([again.length, again[again.length - 1].order], [1, ["Sharpen"]], "a visit asks again and leaves the filters alone");
    }

    function test_answer_while_editing_leaves_the_filters_alone(): void {
        parts.open([]);
        parts.panel.logic.modes.switchEditMode(EditMode.Faces);
        parts.controls.loadImages(["/a.jpg"]);
        parts.settle();
        compare([parts.controls.currentControls.autoPilot, parts.controls.filterOrder], [TImageSettings.On, []]);
        verify(!parts.controls.currentControls.initialFiltersApplied);
        parts.panel.logic.modes.switchEditMode(EditMode.None);
        parts.reader.reload();
        parts.settle();
        compare(parts.controls.filterOrder, ["Denoise", "Sharpen"], "the next answer brings them");
    }

    function test_new_analysis_ends_the_run(): void {
        parts.backends.hold(["runs"]);
        parts.controls.setFilterOrder(["Sharpen"]);
        tryVerify(() => parts.engine.processing, 60000);
        parts.pipeline.autopilot.runFaceDetection();
        tryVerify(() => parts.cancelled === 1, 60000);
        parts.backends.hold([]);
        parts.settle();
        compare(parts.backends.analyses().map(asked => asked.forceFaceDetect), [true]);
    }

    function test_no_analysis_data(): var {
        return [
            { tag: "switched off" },
            { tag: "switched off, exporting", exporting: true },
            { tag: "no picture", path: "" }
        ];
    }

    function test_no_analysis(row): void {
        parts.controls.setAutoPilotStatus(TImageSettings.Off);
        parts.settle();
        parts.windowState.isExporting = row.exporting === true;
        parts.forget();
        if (row.path === "")
            parts.reader.clear();
        else
            parts.reader.reload();
        const runs = parts.runs();
        compare([parts.backends.analyses().length, runs.filter(run => run.exporting).length], [0, row.exporting ? 1 : 0]);
    }

    function test_answers_data(): var {
        return [
            { tag: "of the image shown", landed: true },
            { tag: "of an earlier load", uid: "/a.jpg#0", landed: false },
            { tag: "of the image left behind", index: 1, landed: false }
        ];
    }

    function test_answers(row): void {
        const uid = row.uid ?? parts.engine.inputImage.uid;
        parts.backends.hold(["reads"]);
        parts.controls.setCurrentIndex(row.index ?? 0);
        parts.controls.setAutoPilotStatus(TImageSettings.Processing);
        parts.engine.autoPilotFinished(uid, { Denoise: { enabled: true } });
        compare(parts.controls.currentControls.autoPilot === TImageSettings.On, row.landed);
    }

    function test_file_that_cannot_be_read_is_closed(): void {
        parts.controls.loadImages(["/no.jpg"]);
        tryVerify(() => parts.controls.loadedImages.length === 2, 60000);
        parts.settle();
        compare([log, parts.controls.currentImage, parts.reader.filepath], [["/no.jpg"], "/b.jpg", "/b.jpg"]);
    }

    // Closing and quitting

    function test_closing_asks_only_for_changes_data(): var {
        const change = () => parts.controls.setParam("Denoise", "p", 0.5);
        return [
            { tag: "changed", set: change, asks: true },
            { tag: "as Autopilot left it", set: () => {}, asks: false },
            { tag: "just saved", set: () => { change(); parts.controls.setJustSaved(0); }, asks: false },
            { tag: "no filters", set: () => { change(); parts.controls.setFilterOrder([]); }, asks: false }
        ];
    }

    function test_closing_asks_only_for_changes(row): void {
        row.set();
        closing.closeImage(0);
        compare(log, row.asks ? ["ask"] : []);
        compare(parts.controls.loadedImages.length, row.asks ? 2 : 1);
    }

    function test_closing_after_the_question(): void {
        for (const index of [1, 0]) {
            parts.controls.setCurrentIndex(index);
            parts.settle();
            parts.controls.setParam("Denoise", "p", 0.5);
        }
        closing.closeImage(0);
        closing.cancel();
        closing.confirm();
        compare(parts.controls.loadedImages.length, 2, "an answer without a question");
        closing.closeImage(0);
        closing.closeImage(1);
        compare(log, ["ask", "ask", "ask"]);
        closing.confirm();
        compare(parts.controls.loadedImages, ["/a.jpg"], "the last one asked about");
        closing.closeImage(0);
        compare(log.length, 4, "a confirmation counts once");
        closing.closeImage(7);
        closing.closeImage(-1);
        compare(log.length, 4);
    }

    function test_closing_several_data(): var {
        return [
            { tag: "some", selected: [0], close: () => several.closeSelectedImages(), left: ["/b.jpg"] },
            { tag: "all selected", selected: [0, 1], close: () => several.closeSelectedImages(), left: [] },
            { tag: "all", selected: [0], close: () => several.closeAllImages(), left: [] }
        ];
    }

    function test_closing_several(row): void {
        parts.controls.selectedImages = row.selected;
        row.close();
        several.cancel();
        several.confirm();
        compare(parts.controls.loadedImages.length, 2);
        row.close();
        compare(log, ["ask", "ask"]);
        several.confirm();
        compare(parts.controls.loadedImages, row.left);
        parts.controls.selectedImages = [0];
        several.confirm();
        compare(parts.controls.loadedImages, row.left, "a confirmation counts once");
    }

    function test_quitting(): void {
        parts.settings.windowGeometry = Qt.rect(0, 0, 1, 1);
        quit.imagesOpened();
        verify(!quit.mayClose());
        compare(parts.settings.windowGeometry, parts.helpers.osUtils.geometry(), "kept though refused");
        quit.confirm();
        compare(log, ["ask", "close"]);
        verify(quit.mayClose());
        compare(log[2], "leaving");
        quit.imagesOpened();
        verify(!quit.mayClose());
        quit.exportFinished();
        verify(quit.mayClose());
        quit.imagesOpened();
        parts.controls.reset();
        verify(quit.mayClose(), "nothing to lose");
    }
}
