import QtQml
import TControls

// One filter of the current image as its controls read it, and what Autopilot proposes for the filter's category.
QtObject {
    id: _top

    required property TControls controls
    required property string filterName
    required property string parentCategory

    readonly property bool exists: _entries.filter !== undefined
    readonly property string model: _entries.filter?.model ?? ""
    readonly property var params: _entries.filter?.params ?? {}

    readonly property bool autoEnabled: _entries.auto?.enabled ?? false
    readonly property string autoModel: _entries.auto?.model ?? ""
    readonly property var autoParams: _entries.auto?.params ?? {}

    // The whole map is built at each read; this is the only one.
    readonly property var _entries: {
        const all = controls.currentControls;
        return { filter: all[filterName], auto: all.autoPilotSettings?.[parentCategory] };
    }
}
