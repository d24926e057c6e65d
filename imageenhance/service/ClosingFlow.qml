import QtQuick
import TControls
import TImageProcessor

// Closing one image. An image with changes that nothing has saved is asked about first; the question shows the flow's
// signal, the answer comes by confirm() or cancel().
QtObject {
    id: _top

    required property TControls controls
    required property TEngineController engine

    readonly property int imageToClose: _private.imageToClose

    signal askToClose
    signal closeRefineMode

    function isModified(index: int): bool {
        if (_top.controls.getControls(index).justSaved || _top.controls.getFilterOrder(index).length === 0)
            return false;
        return _top.controls.isModifiedFromAutopilot(_top.controls.loadedImages[index]);
    }

    function closeImage(index: int): void {
        if (index < 0 || index >= _top.controls.loadedImages.length)
            return;
        if (_private.warningShown && index !== _private.imageToClose)
            _private.warningShown = false;
        if (_top.isModified(index) && !_private.warningShown) {
            _private.imageToClose = index;
            _top.askToClose();
            return;
        }
        _top.engine.cancelProc();
        _top.closeRefineMode();
        _top.controls.closeImage(index);
        _private.warningShown = false;
        _private.imageToClose = -1;
    }

    function confirm(): void {
        if (_private.imageToClose < 0)
            return;
        _private.warningShown = true;
        _top.closeImage(_private.imageToClose);
    }

    function cancel(): void {
        _private.imageToClose = -1;
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property bool warningShown: false
        property int imageToClose: -1
    }
}
