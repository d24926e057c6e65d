import QtQuick
import TImageProcessor
import imageenhance

// From what the engine, the view and the edit mode say to one state, one caption and one indicator. No screen.
QtObject {
    id: _top

    required property TEngineController engine
    required property int editMode // EditMode
    required property bool imageLoaded
    required property bool isLoadingImage
    required property bool isRunningAutopilot
    required property bool originalRequested
    required property bool noFiltersEnabled
    required property bool previewUpdated // the last result holds a picture
    required property bool panningOffProcessedArea
    required property bool inpaintLocked // earlier filters are being rendered and frozen

    readonly property real progress: engine.progress * 100
    readonly property string status: engine.status
    readonly property bool inpainting: editMode === EditMode.Inpaint
    readonly property bool undisturbed: editMode === EditMode.None || inpainting

    readonly property int state: {
        if (!imageLoaded)
            return ProgressState.Unloaded;
        return inpainting ? _private.whileInpainting() : _private.otherwise();
    }

    readonly property string caption: {
        const tellsStage = status !== "" && editMode === EditMode.None && ![ProgressState.Unloaded, ProgressState.RunningAutopilot].includes(state) && progress !== 100;
        return tellsStage ? status + "..." : _private.captionOf(state);
    }

    readonly property bool viewsOriginal: state === ProgressState.ViewOriginal || state === ProgressState.NoFiltersEnabled
    readonly property bool manual: [ProgressState.Cropping, ProgressState.Masking, ProgressState.SelectingFaces, ProgressState.SelectingText].includes(state)
    readonly property bool showsSpinner: {
        if (!undisturbed || viewsOriginal || manual || [ProgressState.ModelError, ProgressState.Inpaint_Idle].includes(state))
            return false;
        return ["Scanning", "Initializing", "Preparing", "Starting"].some(word => status.includes(word)) || [ProgressState.Inpaint_PreCaching, ProgressState.Inpaint_Initializing, ProgressState.Inpaint_LockingEdits, ProgressState.DrawingPreview, ProgressState.LoadingImage, ProgressState.RunningAutopilot].includes(state);
    }
    readonly property bool showsProgress: !showsSpinner && undisturbed && !viewsOriginal && [ProgressState.Processing, ProgressState.DownloadingModel, ProgressState.Inpaint_PostProcessing].includes(state)
    readonly property bool showsIcon: !showsSpinner && !showsProgress && !viewsOriginal
    readonly property bool showsBar: inpainting || (editMode === EditMode.None && ((progress > 0 && progress < 100) || state === ProgressState.DrawingPreview))
    readonly property string iconRole: {
        switch (editMode) {
        case EditMode.Crop:
            return "crop";
        case EditMode.Subject:
            return "subject";
        case EditMode.Faces:
            return "faceRecovery";
        }
        if (manual)
            return "eyeOpen";
        if (inpainting)
            return state === ProgressState.Completed ? "previewCheck" : "eraser";
        return state === ProgressState.ModelError ? "warning" : "check";
    }

    readonly property QtObject _private: QtObject {
        id: _private

        readonly property var captions: ({
                [ProgressState.ViewOriginal]: qsTr("Not enhanced"),
                [ProgressState.NoFiltersEnabled]: qsTr("Original"),
                [ProgressState.Unloaded]: qsTr("Idle"),
                [ProgressState.Processing]: qsTr("Updating..."),
                [ProgressState.RunningAutopilot]: qsTr("Analyzing..."),
                [ProgressState.Completed]: qsTr("Enhanced"),
                [ProgressState.LoadingImage]: qsTr("Loading"),
                [ProgressState.Idle]: qsTr("Idle"),
                [ProgressState.DownloadingModel]: qsTr("Downloading models"),
                [ProgressState.Cropping]: qsTr("Cropping"),
                [ProgressState.Masking]: qsTr("Making selection"),
                [ProgressState.SelectingFaces]: qsTr("Selecting faces"),
                [ProgressState.SelectingText]: qsTr("Selecting text"),
                [ProgressState.DrawingPreview]: qsTr("Previewing..."),
                [ProgressState.Inpaint_Idle]: qsTr("Removing objects"),
                [ProgressState.Inpaint_PreCaching]: qsTr("Compiling models..."),
                [ProgressState.Inpaint_Initializing]: qsTr("Preparing..."),
                [ProgressState.Inpaint_LockingEdits]: qsTr("Locking edits..."),
                [ProgressState.Inpaint_PostProcessing]: qsTr("Removing objects...")
            })

        function captionOf(state: int): string {
            if (state === ProgressState.ModelError)
                return _top.engine.error;
            return captions[state] ?? qsTr("Unhandled state: ") + state;
        }

        function whileInpainting(): int {
            if (_top.engine.error !== "")
                return ProgressState.ModelError;
            if (_top.engine.preCachingPostProcModels)
                return ProgressState.Inpaint_PreCaching;
            if (_top.originalRequested)
                return ProgressState.ViewOriginal;
            const finished = _top.progress === 100;
            if (["Preparing", "Initializing"].some(word => _top.status.includes(word)) || (finished && _top.status.includes("Inpainting")))
                return ProgressState.Inpaint_Initializing;
            if (finished)
                return _top.previewUpdated ? ProgressState.Completed : ProgressState.DrawingPreview;
            return _top.inpaintLocked ? ProgressState.Inpaint_LockingEdits : ProgressState.Inpaint_PostProcessing;
        }

        function otherwise(): int {
            switch (_top.editMode) {
            case EditMode.Crop:
                return ProgressState.Cropping;
            case EditMode.Subject:
                return ProgressState.Masking;
            case EditMode.Faces:
                return ProgressState.SelectingFaces;
            case EditMode.Text:
                return ProgressState.SelectingText;
            }
            if (_top.engine.downloadingModels)
                return ProgressState.DownloadingModel;
            if (_top.engine.error !== "")
                return ProgressState.ModelError;
            if (_top.isRunningAutopilot)
                return ProgressState.RunningAutopilot;
            if (_top.originalRequested)
                return ProgressState.ViewOriginal;
            if (_top.isLoadingImage)
                return ProgressState.LoadingImage;
            if (_top.noFiltersEnabled)
                return ProgressState.NoFiltersEnabled;
            if (_top.progress === 100) {
                if (!_top.previewUpdated || _top.status !== "" || _top.engine.processing)
                    return ProgressState.DrawingPreview;
                return _top.panningOffProcessedArea ? ProgressState.ViewOriginal : ProgressState.Completed;
            }
            return _top.progress === 0 ? ProgressState.Idle : ProgressState.Processing;
        }
    }
}
