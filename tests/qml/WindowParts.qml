import QtQuick
import QtQuick.Controls
import QtTest
import PebbleUI
import Testing
import TControls
import TFilterGenerator
import TImageIO
import TPresetsManager
import imageenhance

// A test of the long-lived objects of the window, joined as `main` joins them, over back ends that the test scripts.
TestCase {
    id: _top

    property var log: [] // what a test notes; cleared by open()
    property int seenWidth: 800 // of the preview
    property int editMode: _panel.editMode
    property bool originalKeyHeld: false
    property TFilterGenerator recommender: _backends.recommender({})

    readonly property alias backends: _backends
    readonly property alias settings: _settings
    readonly property alias helpers: _helpers
    readonly property alias controls: _controls
    readonly property alias reader: _reader
    readonly property alias writer: _writer
    readonly property alias engine: _engine
    readonly property alias windowState: _state
    readonly property alias preview: _preview
    readonly property alias panel: _panel
    readonly property alias pipeline: _pipeline
    readonly property alias presets: _presets
    readonly property alias workArea: _layer
    readonly property alias plane: _plane // of tooltips
    property int answers: 0 // of the engine, one for each run that was asked for
    property int cancelled: 0 // of these

    // What is seen in and below an item and passes the test, from the top.
    function items(root: Item, test: var): list<Item> {
        return Array.from(root?.children ?? []).reduce((all, child) => child.visible ? [...all, ...items(child, test)] : all, root && test(root) ? [root] : []);
    }

    // The first such with this value of a property, and with this name for assistive tools. Null where none is.
    function item(root: Item, key: string, value: var): Item {
        return items(root, candidate => candidate[key] === value)[0] ?? null;
    }

    function named(root: Item, name: string): Item {
        return items(root, candidate => candidate.Accessible.name === name && candidate.width > 0)[0] ?? null;
    }

    function focusedName(): string {
        return _panel.Window.activeFocusItem?.Accessible.name ?? "";
    }

    function press(item: Item, key: int): void {
        item.forceActiveFocus(Qt.TabFocusReason);
        keyClick(key);
    }

    function type(text: string): void {
        for (const letter of text)
            keyClick(letter);
    }

    // What is logged during the work, but for when runs are asked for.
    function logged(work: var): list<string> {
        _lines.begin();
        work();
        return _lines.end().filter(line => !line.startsWith("[PROC]"));
    }

    // One warning of the engine with this text comes of the work, and no other.
    function warns(text: string, work: var): void {
        _lines.expectWarning(text);
        work();
        verify(_lines.warningCame(), text);
    }

    // Rows of a table by their names.
    function tagged(rows: var): var {
        return Object.entries(rows).map(([tag, row]) => Object.assign({ tag }, row));
    }

    // With pictures of 1000 x 800, the first one current; all that follows has happened and is forgotten.
    function open(paths: list<string>): void {
        editMode = Qt.binding(() => _panel.editMode);
        originalKeyHeld = _state.isSaving = _state.isExporting = false;
        _backends.hold([]);
        _backends.scriptRuns(0, "", "");
        _controls.reset();
        settle();
        for (const path of paths)
            _backends.addFile(path, 1000, 800);
        if (paths.length > 0)
            _controls.loadImages(paths);
        settle();
        forget();
        log = [];
    }

    function forget(): void {
        _backends.forget();
        answers = cancelled = 0;
    }

    // Until what was deferred has happened, which may defer more.
    function turns(): void {
        for (let i = 0; i < 6; ++i)
            wait(0);
    }

    // Until all that is under way has ended, too, and what that deferred.
    function settle(): void {
        const start = Date.now();
        for (let quiet = 0; quiet < 8; ++quiet) {
            wait(0);
            if (_reader.loading || _engine.processing || _state.autopilotRunning)
                quiet = 0;
            verify(Date.now() - start < 60000, "work that does not end");
        }
    }

    // One model for each category that has an engine.
    function useCatalogue(): void {
        const number = { "default": 0.5 };
        const model = keys => ({ "gui": { "parameters": keys.reduce((all, key) => Object.assign(all, { [key]: number }), {}) } });
        _controls.modelParamInfo = {
            "Denoise": { "Low Light Beta": model(["param1_normalv2", "param2_normalv2", "recover_detail"]), "Severe Noise": model(["param1", "param2"]), "Severe Noise Beta": model(["param1_strongv2", "param2_strongv2"]) },
            "Sharpen": { "Sharpen Standard": model(["param1", "param2", "slens_blur", "smot_blur"]), "Sharpen Standard v2": model(["param1", "param2", "std_blur", "std_noise"]), "Sharpen Strong": model(["param1", "param2", "stg_blur"]) },
            "Enhance": { "CGI": model(["param1", "param2"]), "Standard": model(["param1", "param2", "param3"]), "Standard V2": model(["param1", "param2", "param3"]) },
            "RAW": { "Linear RAW": model(["param1_native"]), "RAW Native": model(["param1_native", "param2_native"]), "RAW Standard": model(["param1_standard", "param2_standard", "param3_standard"]) },
            "Exposure Adjust": { "Exposure Standard": model(["param1"]) },
            "White Balance Adjust": { "White Balance Standard": model(["temperature", "strength"]) }
        };
    }

    // [name, filter] of a controls map's filters, by their names.
    function filtersOf(map: var): var {
        return Object.entries(map).filter(([name, filter]) => filter?.category !== undefined && name !== "autoPilotSettings").sort((one, other) => one[0].localeCompare(other[0]));
    }

    // The runs asked for since the last forget(), each of which reached the engine.
    function runs(): list<var> {
        settle();
        const runs = _backends.runs();
        compare(runs.length, answers);
        return runs;
    }

    // The settings are newer than the result, and nobody has asked for a run.
    function makeStale(): void {
        originalKeyHeld = true;
        _controls.setParam("Denoise", "strength", Math.random());
        settle();
        originalKeyHeld = false;
        settle();
    }

    width: 900
    height: 700

    Component.onCompleted: PebbleStyle.tooltipPlane = _plane
    Component.onDestruction: PebbleStyle.tooltipPlane = null
    Window.onWindowChanged: _helpers.mouseListener.listenTo(Window.window)

    FakeBackends {
        id: _backends
    }
    LogLines {
        id: _lines
    }
    ApplicationWindow {
        id: _window
    }
    MainSettings {
        id: _settings
    }
    Helpers {
        id: _helpers
        appContext: _backends.appContext
        appWindow: _window
        settings: _settings
    }
    TControls {
        id: _controls
    }
    TPresetsManager {
        id: _presets
        presetsDirectory: _backends.appContext.presetsDirectory
    }
    TImageReader {
        id: _reader
    }
    TImageWriter {
        id: _writer
    }
    ImageProcessor {
        id: _engine
        settings: _settings
        integrations: _backends.host
        imageDataUtils: _helpers.imageDataUtils
        strokes: _controls.currentInpaintStrokes
        modelDirectory: "/models"
        inputImage: _state.imageData
        params: _controls.currentControls
        exporting: _state.isExporting
        onProcResultChanged: ++_top.answers
        onProcError: ++_top.answers
        onCanceled: {
            ++_top.answers;
            ++_top.cancelled;
        }
    }
    WindowState {
        id: _state
        helpers: _helpers
        controls: _controls
        reader: _reader
        integrations: _backends.host
        editMode: _top.editMode
    }
    RightPanel {
        id: _panel
        z: 1
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        engine: _engine
        windowState: _state
        settings: _settings
        presets: _presets
        generator: _top.recommender
        navigator: _preview.navigator
        workArea: _layer
        shiftHeld: false
    }
    Item {
        id: _layer
        anchors.fill: parent
        z: 1
    }
    PbTooltipPlane {
        id: _plane
        anchors.fill: parent
        z: 2
    }
    ImagePreview {
        id: _preview
        width: _top.seenWidth
        height: 600
        engine: _engine
        windowState: _state
        settings: _settings
        originalKeyHeld: _top.originalKeyHeld
        navigatorWidth: _panel.navigatorWidth
    }
    ImagePipeline {
        id: _pipeline
        engine: _engine
        writer: _writer
        preview: _preview
        panel: _panel
        windowState: _state
        settings: _settings
        onLoadingFailed: path => _top.log.push(path)
    }
}
