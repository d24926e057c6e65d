import QtQuick
import TControls
import TFilterGenerator
import TPresetsManager
import imageenhance
import "../../utils/presetReduction.mjs" as Reduction

// The right panel without its screen: the stack of filters, the edit mode, what is taken back, and the ways in which an
// image comes to its filters.
QtObject {
    id: _top

    required property ImageProcessor engine
    required property TPresetsManager presets
    required property TFilterGenerator generator
    required property MainSettings settings
    required property WindowState windowState

    readonly property TControls controls: windowState.controls
    readonly property alias modes: _modes
    readonly property alias vocabulary: _vocabulary
    readonly property alias stack: _stack
    readonly property alias steps: _steps
    readonly property alias selection: _selection
    readonly property alias suggestions: _suggestions
    readonly property alias actions: _actions
    readonly property alias problems: _private.problems // of the analysis: faceCount, noise_level, reasons, ...
    readonly property alias loaded: _private.loaded // the column shows the current image's filters
    readonly property int faceCount: problems.faceCount ?? -1
    readonly property bool resizingSupported: !windowState.pluginMode || windowState.integrations.resizingSupported
    // Autopilot has answered, and would put nothing on the image.
    readonly property bool isFineAsItIs: controls.currentImage !== "" && controls.advicesHeard >= 0 && controls.isFineAsItIs()

    signal autopilotNeedsConfirmation // it would replace the filters that the image has
    signal autopilotAdded
    signal warned(string title, string message)

    // Autopilot has answered, or had done so before this image became current.
    function readyToAddFilters(): void {
        if (modes.editMode !== EditMode.None || !windowState.imageOpen)
            return;
        if (_loading.loadNewFiltersIntoEdits(Boolean(controls.currentControls.applyAutopilotOnceCalculated)))
            _private.loaded = true;
        controls.resetManualAPCheck();
    }

    // By hand. False where it would replace filters: the user is asked first.
    function applyAutopilot(): bool {
        const applied = _loading.loadNewFiltersIntoEdits(true);
        if (applied)
            autopilotAdded();
        suggestions.regenerate();
        return applied;
    }

    // Under the next free name.
    function addFilter(category: string, openPanel: bool): void {
        stack.addNewFilterToHistory(category, stack.getAdjustedFilterName(category), openPanel);
    }

    function clearAndAddAutopilotFilters(): void {
        stack.clearEditsColumn(true);
        applyAutopilot();
    }

    function loadPreset(name: string): void {
        const preset = presets.getPreset(name);
        if (!Reduction.hasFilters(preset)) {
            warned(qsTr("Could not apply preset"), qsTr("The file of the preset “%1” is missing or damaged.").arg(name));
            return;
        }
        const result = controls.applyPresetToImage(controls.currentImage, preset.controls, preset.filterOrder, resizingSupported);
        // A refused upscale ends here, with an error in the log: `messge` is not what the result calls it.
        if (result.title && result.messge.length > 0)
            return;
        stack.clearEditsColumn();
        _loading.loadNewFiltersIntoEdits(false);
        suggestions.regenerate();
    }

    // The current image's record became another one elsewhere: by undo, or from a host.
    function followRecord(): void {
        if (loaded)
            _loading.follow();
    }

    readonly property EditModes _modesObject: EditModes {
        id: _modes
        faceCount: _top.faceCount
        onCanceled: mode => {
            if (mode === EditMode.Inpaint)
                _top.controls.setParam(_top.controls.categories.inpaint, "modified", false);
        }
    }
    readonly property FilterVocabulary _vocabularyObject: FilterVocabulary {
        id: _vocabulary
        controls: _top.controls
    }
    readonly property RightPanelState _stackObject: RightPanelState {
        id: _stack
        controls: _top.controls
        engine: _top.engine
        modes: _modes
        vocabulary: _vocabulary
        exporting: _top.windowState.isExporting
        problems: _top.problems
    }
    readonly property ColumnLoading _loadingObject: ColumnLoading {
        id: _loading
        panelState: _stack
        onAutopilotNeedsConfirmation: _top.autopilotNeedsConfirmation()
    }
    readonly property ShownSelection _selectionObject: ShownSelection {
        id: _selection
        controls: _top.controls
        engine: _top.engine
        editMode: _modes.editMode
        faceCount: _top.faceCount
        manualHideFaces: _stack.manualHideFaces
        currentFilter: _stack.currentFilter
    }
    readonly property SuggestionList _suggestionsObject: SuggestionList {
        id: _suggestions
        controls: _top.controls
        generator: _top.generator
        settings: _top.settings
        engine: _top.engine
        vocabulary: _vocabulary
        inputSize: _top.windowState.inputSize
        rowCount: _stack.enhancementsModel.count
        autopilotRunning: _top.windowState.autopilotRunning
        onWanted: category => {
            _stack.closeOpenRefinePanel();
            _top.addFilter(category, true);
        }
    }
    readonly property EnhancementActions _actionsObject: EnhancementActions {
        id: _actions
        panelState: _stack
        onHoverPreview: (show, mode) => _selection.toggleHoverPreview(show, mode)
    }
    readonly property EditSteps _stepsObject: EditSteps {
        id: _steps
        controls: _top.controls
        mousePressed: _top.windowState.helpers.mouseListener.isMousePressed
        recording: _top.loaded && !_top.windowState.isExporting
        editing: _modes.editMode !== EditMode.None
        onRestored: _top.followRecord()
    }

    readonly property Connections _ofControls: Connections {
        target: _top.controls

        function onCurrentIndexChanged(): void {
            _private.loaded = false;
        }
    }
    readonly property Connections _ofEngine: Connections {
        target: _top.engine

        function onAutoProblemsUpdated(uid: string, problems: var): void {
            if (uid !== "" && uid === _top.engine.inputImage.uid)
                _private.problems = Object.assign({}, _private.problems, problems);
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property var problems: ({})
        property bool loaded: false
    }
}
