import QtQuick
import TControls
import TFilterGenerator
import imageenhance
import "../../../utils/suggestions.mjs" as Suggestions

// Asks the recommender what may come next on the current image, beside what is proposed already.
QtObject {
    id: _top

    required property TControls controls
    required property TFilterGenerator generator
    required property MainSettings settings
    required property FilterVocabulary vocabulary
    required property size inputSize // of the current image, in pixels
    required property var problems // what the analysis found
    required property list<string> categories // that can be proposed

    readonly property bool tooLarge: inputSize.width * inputSize.height >= 24000000 // to enlarge it further

    // A suggestion, or null. `heard` are entries that have been answered already.
    function next(existing: var, heard = []): var {
        const current = controls.currentControls;
        const order = controls.filterOrder;
        const subjectOf = name => current[name]?.subjectSettings?.model;
        const excluded = Suggestions.excludedFilters(_private.unavailable(), existing, order, subjectOf);
        return Suggestions.parsed(generator.suggestNextFilter(Suggestions.appliedFilters(order, subjectOf), [...excluded, ...heard]));
    }

    // `existing` with three more, or fewer.
    function firstOf(existing: var): var {
        const isEnhance = ({ filterName }) => filterName === _top.controls.categories.enhance;
        const list = Array.from(existing);
        const heard = [];
        for (let i = 0; i < 3; ++i) {
            const suggestion = next(list, heard);
            if (!suggestion)
                continue;
            heard.push(suggestion.filterName + "-" + suggestion.subject);
            if (suggestion.filterName === controls.categories.sharpen)
                suggestion.subject = settings.autopilotSubjectType;
            list.push(suggestion);
        }
        if (!tooLarge || list.filter(isEnhance).length !== 1)
            return list;
        const another = next(list);
        return [...list, ...(another ? [another] : [])].filter(suggestion => !isEnhance(suggestion));
    }

    readonly property QtObject _private: QtObject {
        id: _private

        function unavailable(): list<string> {
            // Those without a model have no subject either.
            const names = _top.categories.filter(category => !_top.vocabulary.isOffered(category));
            if (_top.problems.autoFaces?.length === 0 || _top.settings.autopilotFaceDetect === "none")
                names.push(_top.controls.categories.faceRecovery);
            if (_top.tooLarge)
                names.push(_top.controls.categories.enhance);
            return names.map(name => name + "-");
        }
    }
}
