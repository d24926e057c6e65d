import QtQuick
import imageenhance

// The rows of the card: `filterType` (the category's label), `subject`, `isAPFilter` (Autopilot enabled it).
ListModel {
    id: _top

    required property FilterVocabulary vocabulary

    readonly property list<string> categories: [_names.denoise, _names.sharpen, _names.inpaint, _names.enhance, _names.exposure,
        _names.whiteBalance, _names.faceRecovery, _names.textRecovery]
    readonly property var _names: vocabulary.controls.categories // CategoryNames

    function labelOf(category: string): string {
        return category === _names.inpaint ? qsTr("Remove an object") : vocabulary.label(category);
    }

    function categoryOf(label: string): string {
        return categories.find(category => labelOf(category) === label) ?? label;
    }

    // Rows that stay are changed in place, so that only what comes and goes moves.
    function show(suggestions: var, autoPilotFilters: list<string>): void {
        suggestions.forEach(({ filterName, subject }, i) => {
            const isAPFilter = autoPilotFilters.includes(filterName) && (filterName !== _top._names.sharpen || subject === "Subject");
            _top.set(i, { "filterType": _top.labelOf(filterName), subject, isAPFilter });
        });
        if (count > suggestions.length)
            remove(suggestions.length, count - suggestions.length);
    }
}
