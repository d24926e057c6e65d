import QtQuick
import imageenhance

// Masks, superpixels and hover: asks the engine for what a selection needs, and keeps its answers while they are of
// the image that is shown.
QtObject {
    id: _top

    required property ImageProcessor engine
    required property ImagePreview preview
    required property WindowState windowState

    readonly property Timer _timer: Timer {
        id: _hoverTimer
        interval: 50
        onTriggered: _top.engine.updateSelectionMaskHover(_top.engine.inputImage, _top.windowState.controls.subjectSettings, _private.position)
    }

    readonly property Connections _ofPreview: Connections {
        target: _top.preview

        // One question for each pause in the pointer's movement.
        function onSelectionMaskPositionChanged(position: point): void {
            _private.position = position;
            _hoverTimer.restart();
        }
    }

    readonly property Connections _ofControls: Connections {
        target: _top.windowState.controls

        function onSubjectSettingsChanged(subjectSettings: var): void {
            // While another image is being read the engine still holds the one before.
            if (_private.isShown(_top.engine.inputImage.uid) && _top.engine.inputImage.filepath === _top.windowState.controls.currentImage)
                _top.engine.editSubjectMask(_top.engine.inputImage, subjectSettings);
        }
    }

    readonly property Connections _ofEngine: Connections {
        target: _top.engine

        function onMaskGenerated(uid: string, maskHashes: var, brushTextures: var): void {
            if (!_private.isShown(uid) || _top.windowState.isExporting)
                return;
            _top.engine.maskTextures = {
                "uid": uid,
                "maskHashes": maskHashes,
                "brushTextures": brushTextures
            };
        }

        function onSuperpixelsGenerated(uid: string, brushSize: real, image: var): void {
            if (_private.isShown(uid))
                _top.engine.superpixels = image;
        }

        function onSubjectMaskHoverUpdated(mask: var): void {
            _top.engine.selectionMask = mask;
        }

        function onBoundingBoxCalculated(rect: rect): void {
            _top.engine.boundingBox = rect;
        }

        function onAutoProblemsUpdated(uid: string, problems: var): void {
            if (_private.isShown(uid))
                _top.engine.takeProblems(problems);
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property point position // of the pointer in a mask tool, in pixels of the input

        function isShown(uid: var): bool {
            return Boolean(uid) && uid === _top.engine.inputImage.uid;
        }
    }
}
