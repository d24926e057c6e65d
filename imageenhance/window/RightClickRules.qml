import QtQml
import TControls
import imageenhance

// What the context menu may offer for an image, without a screen. Asking walks the selected images, which may be
// thousands, so it is done when the menu opens and not whenever something changes.
QtObject {
    id: _top

    required property TControls controls
    required property WindowState windowState

    readonly property alias target: _private.target // a path; empty for no particular image
    readonly property bool batchEnabled: controls.loadedImages.length > 1
    readonly property bool isCurrentlyPreviewedImage: target === "" || target === controls.currentImage
    readonly property alias isTargetSelected: _private.selected
    readonly property alias autopilotEnabled: _private.autopilotEnabled
    readonly property alias currentSettingsEnabled: _private.currentSettingsEnabled

    function evaluate(path: string): void {
        const paths = controls.loadedImages;
        const selected = controls.selectedImages.map(index => paths[index] ?? "");
        _private.target = path;
        _private.selected = path !== "" && selected.includes(path);
        const concerned = (_private.selected ? selected : [path || controls.currentImage]).filter(image => image !== "");
        _private.autopilotEnabled = windowState.imageOpen && concerned.some(image => controls.isModifiedFromAutopilot(image));
        _private.currentSettingsEnabled = controls.areFiltersEnabled && concerned.some(image => !controls.doCurrentControlsMatchImage(image));
    }

    // The image that a command for one image is about; -1 when none is open.
    function index(): int {
        const found = controls.indexOf(target);
        return found < 0 ? controls.currentIndex : found;
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property string target
        property bool selected: false
        property bool autopilotEnabled: false
        property bool currentSettingsEnabled: false
    }
}
