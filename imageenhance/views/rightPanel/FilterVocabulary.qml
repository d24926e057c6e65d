import QtQuick
import PebbleUI
import TControls

// What the column calls the categories of filters, and their icons.
QtObject {
    id: _top

    required property TControls controls

    // The filters that may be limited to a subject.
    readonly property list<string> selectionFilters: [_names.denoise, _names.sharpen, _names.exposure, _names.whiteBalance]

    function label(category: string): string {
        return _labels[category] ?? category;
    }

    function icon(category: string): url {
        return PebbleStyle.icon[_iconRoles[category] ?? "filter"];
    }

    function isSelectionFilter(category: string): bool {
        return selectionFilters.includes(category);
    }

    // Whether the catalogue lists a model for it.
    function isOffered(category: string): bool {
        return (controls.modelNames[category] ?? []).length > 0;
    }

    readonly property var _names: controls.categories // CategoryNames
    readonly property var _labels: ({
            [_names.enhance]: qsTr("Upscale"),
            [_names.denoise]: qsTr("Denoise"),
            [_names.raw]: qsTr("RAW denoise"),
            [_names.sharpen]: qsTr("Sharpen"),
            [_names.faceRecovery]: qsTr("Face recovery"),
            [_names.textRecovery]: qsTr("Preserve text"),
            [_names.exposure]: qsTr("Adjust lighting"),
            [_names.whiteBalance]: qsTr("Balance color"),
            [_names.inpaint]: qsTr("Remove")
        })
    readonly property var _iconRoles: ({
            [_names.enhance]: "resize",
            [_names.denoise]: "blur",
            [_names.raw]: "raw",
            [_names.sharpen]: "triangle",
            [_names.faceRecovery]: "face",
            [_names.textRecovery]: "text",
            [_names.exposure]: "brightness",
            [_names.whiteBalance]: "whiteBalance",
            [_names.inpaint]: "remove"
        })
}
