import QtQuick
import TControls

// Closing the selected images, or all. Always asked about.
QtObject {
    id: _top

    required property TControls controls

    signal askToCloseSelected
    signal askToCloseAll
    signal closeRefineMode

    function closeSelectedImages(): void {
        _private.all = _top.controls.selectedImages.length === _top.controls.loadedImages.length;
        _private.asked = true;
        _top.askToCloseSelected();
    }

    function closeAllImages(): void {
        _private.all = true;
        _private.asked = true;
        _top.askToCloseAll();
    }

    function confirm(): void {
        if (!_private.asked)
            return;
        _private.asked = false;
        _top.closeRefineMode();
        if (_private.all)
            _top.controls.reset();
        else
            _top.controls.closeSelectedImages();
    }

    function cancel(): void {
        _private.asked = false;
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property bool asked: false
        property bool all: false
    }
}
