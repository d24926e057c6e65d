import QtQuick
import QtTest
import imageenhance

TestCase {
    name: "StatusRules"

    readonly property var usual: ({ editMode: RightPanel.EditMode.None, imageLoaded: true, isLoadingImage: false, isRunningAutopilot: false, originalRequested: false, noFiltersEnabled: false, previewUpdated: true, panningOffProcessedArea: false, inpaintLocked: false })

    FakeEngine {
        id: engine
    }
    Component {
        id: rules
        StatusRules {}
    }

    function test_states_data(): var {
        const inpaint = { editMode: RightPanel.EditMode.Inpaint };
        return [
            { tag: "no image", rules: { imageLoaded: false, isRunningAutopilot: true }, caption: "Idle" },
            { tag: "analysed", rules: { isRunningAutopilot: true, originalRequested: true }, caption: "Analyzing...", shows: "showsSpinner" },
            { tag: "loading", rules: { isLoadingImage: true }, caption: "Loading", shows: "showsSpinner" },
            { tag: "original asked for", rules: { originalRequested: true }, engine: { progress: 1 }, caption: "Not enhanced" },
            { tag: "filters off", rules: { noFiltersEnabled: true }, engine: { progress: 1 }, caption: "Original" },
            { tag: "before the first run", rules: {}, caption: "Idle", shows: "showsIcon" },
            { tag: "at work", rules: {}, engine: { progress: 0.4 }, caption: "Updating...", shows: "showsProgress" },
            { tag: "at work on a stage", rules: {}, engine: { progress: 0.4, status: "Denoise" }, caption: "Denoise...", shows: "showsProgress" },
            { tag: "stage begins", rules: {}, engine: { progress: 0.1, status: "Preparing" }, caption: "Preparing...", shows: "showsSpinner" },
            { tag: "done", rules: {}, engine: { progress: 1 }, caption: "Enhanced", shows: "showsIcon" },
            { tag: "done, next one begun", rules: {}, engine: { progress: 1, processing: true }, caption: "Previewing...", shows: "showsSpinner" },
            { tag: "done, seen elsewhere", rules: { panningOffProcessedArea: true }, engine: { progress: 1 }, caption: "Not enhanced" },
            { tag: "failed", rules: { isRunningAutopilot: true }, engine: { error: "Out of memory" }, caption: "Out of memory", shows: "showsIcon" },
            { tag: "cropping goes first", rules: { editMode: RightPanel.EditMode.Crop, isRunningAutopilot: true }, engine: { error: "x" }, caption: "Cropping", shows: "showsIcon" },
            { tag: "removing, locked", rules: Object.assign({ inpaintLocked: true }, inpaint), engine: { progress: 0.5 }, caption: "Locking edits...", shows: "showsSpinner" },
            { tag: "removing", rules: inpaint, engine: { progress: 0.5 }, caption: "Removing objects...", shows: "showsProgress" },
            { tag: "removed", rules: inpaint, engine: { progress: 1 }, caption: "Enhanced", shows: "showsIcon" }
        ];
    }

    function test_states(row): void {
        Object.assign(engine, { progress: 0, status: "", error: "", processing: false }, row.engine ?? {});
        const status = createTemporaryObject(rules, this, Object.assign({ engine: engine }, usual, row.rules));
        compare(status.caption, row.caption);
        for (const indicator of ["showsSpinner", "showsProgress", "showsIcon"]) {
            if (row.rules.imageLoaded !== false)
                compare(status[indicator], row.shows === indicator, indicator);
        }
    }
}
