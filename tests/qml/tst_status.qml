import QtQuick
import QtTest
import imageenhance

WindowParts {
    id: parts

    name: "StatusRules"

    readonly property var usual: ({ editMode: EditMode.None, imageLoaded: true, isLoadingImage: false, isRunningAutopilot: false, originalRequested: false, noFiltersEnabled: false, previewUpdated: true, panningOffProcessedArea: false, inpaintLocked: false })

    Component {
        id: rules
        StatusRules {}
    }

    function initTestCase(): void {
        parts.open(["/a.jpg"]);
    }

    // `run` is a run under way: how far it is and at which stage; `ends` says whether it is over, and how.
    function test_states_data(): var {
        const inpaint = { editMode: EditMode.Inpaint };
        const done = { ends: "" };
        return [
            { tag: "no image", rules: { imageLoaded: false, isRunningAutopilot: true }, caption: "Idle" },
            { tag: "analysed", rules: { isRunningAutopilot: true, originalRequested: true }, caption: "Analyzing...", shows: "showsSpinner" },
            { tag: "loading", rules: { isLoadingImage: true }, caption: "Loading", shows: "showsSpinner" },
            { tag: "original asked for", rules: { originalRequested: true }, run: done, caption: "Not enhanced" },
            { tag: "filters off", rules: { noFiltersEnabled: true }, run: done, caption: "Original" },
            { tag: "before the first run", rules: {}, run: {}, caption: "Idle", shows: "showsIcon" },
            { tag: "at work", rules: {}, run: { progress: 0.4 }, caption: "Updating...", shows: "showsProgress" },
            { tag: "at work on a stage", rules: {}, run: { progress: 0.4, stage: "Denoise" }, caption: "Denoise...", shows: "showsProgress" },
            { tag: "stage begins", rules: {}, run: { progress: 0.1, stage: "Preparing" }, caption: "Preparing...", shows: "showsSpinner" },
            { tag: "done", rules: {}, run: done, caption: "Enhanced", shows: "showsIcon" },
            { tag: "done, next one begun", rules: {}, run: { progress: 1 }, caption: "Previewing...", shows: "showsSpinner" },
            { tag: "done, seen elsewhere", rules: { panningOffProcessedArea: true }, run: done, caption: "Not enhanced" },
            { tag: "failed", rules: { isRunningAutopilot: true }, run: { ends: "Out of memory" }, caption: "Out of memory", shows: "showsIcon" },
            { tag: "cropping goes first", rules: { editMode: EditMode.Crop, isRunningAutopilot: true }, run: { ends: "x" }, caption: "Cropping", shows: "showsIcon" },
            { tag: "removing, locked", rules: Object.assign({ inpaintLocked: true }, inpaint), run: { progress: 0.5 }, caption: "Locking edits...", shows: "showsSpinner" },
            { tag: "removing", rules: inpaint, run: { progress: 0.5 }, caption: "Removing objects...", shows: "showsProgress" },
            { tag: "removed", rules: inpaint, run: done, caption: "Enhanced", shows: "showsIcon" }
        ];
    }

    function test_states(row): void {
        const run = row.run ?? {};
        const engine = parts.engine;
        parts.backends.scriptRuns(run.progress ?? 0, run.stage ?? "", run.ends ?? "");
        parts.backends.hold(run.ends === undefined ? ["runs"] : []);
        engine.startProc(engine.inputImage, Qt.rect(0, 0, 8, 8), {}, [], false);
        tryVerify(() => run.ends === undefined ? engine.progress === (run.progress ?? 0) : !engine.processing, 60000);
        const status = createTemporaryObject(rules, this, Object.assign({ engine }, usual, row.rules));
        compare(status.caption, row.caption);
        for (const indicator of ["showsSpinner", "showsProgress", "showsIcon"]) {
            if (row.rules.imageLoaded !== false)
                compare(status[indicator], row.shows === indicator, indicator);
        }
        parts.backends.hold([]);
        parts.backends.scriptRuns(0, "", "");
        engine.startProc(engine.inputImage, Qt.rect(0, 0, 8, 8), {}, [], false); // ends without an error
        parts.settle();
    }
}
