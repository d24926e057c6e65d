import QtQml
import TControls
import TPresetsManager
import imageenhance

// Lays Autopilot's filters, the current image's settings or a preset on one image or on all that are selected. The panel
// shows the current image's filters by itself; what it has to do meanwhile is told by signals.
QtObject {
    id: _top

    required property TControls controls
    required property WindowState windowState
    required property TPresetsManager presets

    readonly property bool resizingSupported: !windowState.pluginMode || windowState.integrations.resizingSupported

    // To the panel
    signal clearAndAddAutopilotFilters // on the current image
    signal clearEditsColumn // the model keeps the filters
    signal readyToAddFilters // the column shows the model's again
    signal presetTriggered
    signal manuallyTriggeredAP

    // To whatever lists images
    signal appliedToAll
    signal appliedToIndex(index: int)

    signal warned(title: string, message: string)

    function applyAutopilotToSelected(): void {
        const current = controls.currentImage;
        for (const path of _private.selectedPaths()) {
            if (path === current)
                clearAndAddAutopilotFilters();
            else
                controls.applyAutopilotToImage(path, false);
        }
        _private.reloadColumn();
        manuallyTriggeredAP();
        _private.finish();
    }

    function applyAutopilotToIndex(index: int): void {
        const path = controls.loadedImages[index] ?? "";
        if (path === "")
            return;
        controls.applyAutopilotToImage(path);
        if (index === controls.currentIndex)
            _private.reloadColumn();
        manuallyTriggeredAP();
        appliedToIndex(index);
    }

    function applyCurrentSettingsToSelected(): void {
        const current = controls.currentImage;
        for (const path of _private.selectedPaths()) {
            if (path !== current)
                controls.applyCurrentControlsToImage(path, true);
        }
        _private.finish();
    }

    function applyCurrentSettingsToIndex(index: int): void {
        controls.applyCurrentControlsToImage(controls.loadedImages[index] ?? "");
        appliedToIndex(index);
    }

    function applyPresetToSelected(presetControls: var, filterOrder: var): void {
        const warnings = new Map(); // each is told once, however many images it is about
        for (const path of _private.selectedPaths()) {
            const warning = controls.applyPresetToImage(path, presetControls, filterOrder, resizingSupported, false);
            warnings.set(JSON.stringify(warning), warning);
        }
        warnings.forEach(warning => _private.warn(warning));
        _private.reloadColumn();
        presetTriggered();
        _private.finish();
    }

    function applyPresetToIndex(index: int, presetControls: var, filterOrder: var): void {
        const path = controls.loadedImages[index] ?? "";
        _private.warn(controls.applyPresetToImage(path, presetControls, filterOrder, resizingSupported));
        if (index === controls.currentIndex) {
            _private.reloadColumn();
            presetTriggered();
        }
        appliedToIndex(index);
    }

    // By its name. A preset that can't be read changes nothing.
    function applyNamedPresetToSelected(name: string): void {
        const preset = _reader.read(name);
        if (preset)
            applyPresetToSelected(preset.controls, preset.filterOrder);
    }

    function applyNamedPresetToIndex(name: string, index: int): void {
        const preset = _reader.read(name);
        if (preset)
            applyPresetToIndex(index, preset.controls, preset.filterOrder);
    }

    readonly property PresetReader _readerObject: PresetReader {
        id: _reader
        presets: _top.presets
        onWarned: (title, message) => _top.warned(title, message)
    }

    readonly property QtObject _private: QtObject {
        id: _private

        // The selection may name images that have gone.
        function selectedPaths(): list<string> {
            const paths = _top.controls.loadedImages;
            return _top.controls.selectedImages.map(index => paths[index] ?? "").filter(path => path !== "");
        }

        function reloadColumn(): void {
            _top.clearEditsColumn();
            _top.readyToAddFilters();
        }

        function warn(warning: var): void {
            if (warning.title)
                _top.warned(warning.title, warning.message);
        }

        function finish(): void {
            _top.controls.propagateControlChanges();
            // The question has said that this can't be undone.
            _top.controls.forgetEdits();
            _top.appliedToAll();
        }
    }
}
