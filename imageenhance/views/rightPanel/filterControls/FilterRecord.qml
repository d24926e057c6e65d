import QtQml
import TControls

// One filter of the current image as its controls read it, and what Autopilot proposes for the filter's category.
QtObject {
    id: _top

    required property TControls controls
    required property string filterName
    required property string parentCategory
    // Somebody sees it: what is hidden reads nothing, so that a slider's move costs what is seen alone.
    required property bool followed

    readonly property bool exists: _filter.category !== undefined
    readonly property string model: _filter.model ?? ""
    readonly property var params: _filter.params ?? {}

    readonly property bool autoEnabled: _advised.enabled ?? false
    readonly property string autoModel: _advised.model ?? ""
    readonly property var autoParams: _advised.params ?? {}

    readonly property var _filter: followed && controls.currentChanges >= 0 ? controls.currentFilter(filterName) : {}
    readonly property var _advised: controls.currentImage !== "" && controls.advicesHeard >= 0 ? controls.advisedFilter(parentCategory) : {}
}
