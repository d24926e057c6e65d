import QtQuick
import TControls
import TFilterGenerator
import imageenhance
import "../../../utils/filterStack.mjs" as Stack

// What is proposed next for the current image. The model keeps the list with the image, so that a later visit shows
// the same one. Knows no screen.
QtObject {
    id: _top

    required property TControls controls
    required property TFilterGenerator generator
    required property MainSettings settings
    required property ImageProcessor engine
    required property FilterVocabulary vocabulary
    required property size inputSize // of the current image, in pixels
    required property int rowCount // of the column
    required property bool autopilotRunning

    readonly property alias suggestionModel: _model
    readonly property alias existingSuggestions: _private.existing // `{ filterName, subject }` each
    readonly property alias autoPilotFilters: _private.autoPilotFilters // the categories that it enabled for this image
    readonly property alias firstSuggestions: _private.firstSuggestions // none was taken and replaced yet
    readonly property alias showAnalysisLoader: _loader.running
    readonly property alias suggestionsTaken: _private.taken
    readonly property alias suggestionsProvided: _private.provided
    readonly property bool noMoreSuggestion: suggestionModel.count === 0
    readonly property alias tooLarge: _source.tooLarge
    readonly property bool canSavePreset: rowCount > 0
        && controls.filterOrder.some(name => ![_names.raw, _names.inpaint].includes(Stack.categoryOf(name)))
    readonly property bool canApplyRecommendations: rowCount === 0
        || (rowCount === 1 && controls.filterOrder.every(name => Stack.categoryOf(name) === _names.raw))

    // Whoever hears of it closes open refine panels and adds the filter, under the next free name, with its panel open.
    signal wanted(category: string, subject: string)

    function take(index: int): void {
        if (showAnalysisLoader || index < 0 || index >= suggestionModel.count)
            return;
        const row = suggestionModel.get(index);
        const [category, subject] = [categoryOf(row.filterType), row.subject];
        ++_private.taken;
        _private.provided = _private.taken + suggestionModel.count - 1;
        wanted(category, subject);
        // The plain category on purpose: a second filter of a category changes the subject of the first.
        if (category !== _names.enhance)
            controls.setSubjectSettings(category, { "model": subject, "strokes": [] });
        suggestionModel.remove(index);
        _private.store(_private.existing.filter((_, i) => i !== index));
        _loader.restart();
    }

    // The user is about to add an Enhance by hand.
    function removeUpscale(): void {
        if (!_private.existing.some(({ filterName }) => filterName === _top._names.enhance))
            return;
        _private.append(_source.next(_private.existing));
        _private.store(_private.existing.filter(({ filterName }) => filterName !== _top._names.enhance));
        _model.show(_private.existing, []);
    }

    // Autopilot was applied by hand, or a preset was.
    function regenerate(): void {
        _private.store(_source.firstOf([]));
        const advised = _private.advised();
        // The RAW that was applied keeps Sharpen out of the filter order: it would come back at once.
        if (advised.includes(_names.sharpen) && advised.includes(_names.raw)) {
            _private.append(_source.next(_private.existing));
            _private.store(_private.existing.filter(({ filterName, subject }) => filterName !== _top._names.sharpen && subject !== "Subject"));
        }
        _private.rebuild();
    }

    function categoryOf(label: string): string {
        return _model.categoryOf(label);
    }

    readonly property var _names: controls.categories // CategoryNames
    readonly property SuggestionModel _modelObject: SuggestionModel {
        id: _model
        vocabulary: _top.vocabulary
    }

    readonly property SuggestionSource _sourceObject: SuggestionSource {
        id: _source
        controls: _top.controls
        generator: _top.generator
        settings: _top.settings
        vocabulary: _top.vocabulary
        inputSize: _top.inputSize
        problems: _private.problems
        categories: _model.categories
    }

    readonly property Timer _loaderTimer: Timer {
        id: _loader
        interval: 1000
        onTriggered: {
            _private.append(_source.next(_private.existing));
            _private.store(_private.existing);
            _private.rebuild();
            _private.firstSuggestions = false;
        }
    }

    readonly property Connections _ofControls: Connections {
        target: _top.controls

        function onCurrentIndexChanged(): void {
            if (_top.controls.currentIndex < 0)
                return;
            _loader.stop();
            _private.autoPilotFilters = _private.advised();
            _private.restore();
        }
    }

    readonly property Connections _ofEngine: Connections {
        target: _top.engine

        function onAutoProblemsUpdated(uid: string, problems: var): void {
            if (_top.engine.inputImage.uid === uid)
                _private.problems = Object.assign({}, _private.problems, problems);
        }

        // Deferred, so that the answer has landed and the image has its first filters.
        function onAutoPilotFinished(uid: string): void {
            Qt.callLater(_private.analysed, uid);
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property var existing: []
        property var problems: ({}) // what the analyses told, one over the other
        property list<string> autoPilotFilters
        property bool firstSuggestions: true
        property int taken: 0
        property int provided: 0

        function analysed(uid: string): void {
            if (_top.engine.inputImage.uid !== uid || !uid.includes(_top.controls.currentImage))
                return;
            autoPilotFilters = [...new Set([...autoPilotFilters, ...advised()])];
            if (_top.autopilotRunning || stored().length > 0)
                return;
            store(_source.firstOf(existing));
            restore();
        }

        function advised(): list<string> {
            const advice = _top.controls.currentControls.autoPilotSettings ?? {};
            return _top.controls.processingOrder.filter(category => advice[category]?.enabled);
        }

        function stored(): var {
            return Array.from(_top.controls.getAutoPilotSuggestionOrder(_top.controls.currentIndex));
        }

        function store(list: var): void {
            existing = list;
            _top.controls.setAutoPilotSuggestionOrder(list);
        }

        function restore(): void {
            existing = stored();
            rebuild();
        }

        function append(suggestion: var): void {
            if (suggestion)
                existing = [...existing, suggestion];
        }

        function rebuild(): void {
            _model.show(existing, autoPilotFilters);
        }
    }
}
