import QtQuick
import TControls

// Cuts what is done to an image into steps that can be undone: one for a drag, one for a burst of keys, one for each
// change of the stack.
QtObject {
    id: _top

    required property TControls controls
    required property bool mousePressed
    required property bool recording // the image has its filters
    required property bool editing // an edit mode is open: what it does is one step when it is left

    readonly property bool active: recording && !editing && !mousePressed
    readonly property bool canUndo: active && controls.canUndo
    readonly property bool canRedo: active && controls.canRedo
    readonly property int pause: 400 // milliseconds without a change end a burst

    signal restored // the record is another one now

    function undo(): void {
        _private.move(() => controls.undoEdit());
    }

    function redo(): void {
        _private.move(() => controls.redoEdit());
    }

    onRecordingChanged: {
        _pause.stop();
        if (recording)
            controls.startEdits();
    }
    onMousePressedChanged: {
        if (!mousePressed && _pause.running)
            Qt.callLater(_private.record);
    }

    readonly property Timer _timer: Timer {
        id: _pause
        interval: _top.pause
        onTriggered: _private.record()
    }

    readonly property Connections _ofControls: Connections {
        target: _top.controls
        enabled: _top.recording

        function onCurrentControlsChanged(): void {
            _pause.restart();
        }

        function onCurrentImageDataChanged(): void {
            _pause.restart();
        }

        function onFilterOrderChanged(): void {
            Qt.callLater(_private.record);
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        function move(step: var): void {
            if (!_top.active)
                return;
            _pause.stop();
            if (step())
                _top.restored();
        }

        function record(): void {
            if (!_top.active) {
                if (_top.recording)
                    _pause.restart();
                return;
            }
            _pause.stop();
            _top.controls.recordEdit();
        }
    }
}
