import QtQml

// What the status bar says about the picture on the screen.
QtObject {
    enum State {
        ViewOriginal,
        NoFiltersEnabled,
        Unloaded,
        Processing,
        RunningAutopilot,
        Completed,
        LoadingImage,
        Idle,
        DownloadingModel,
        ModelError,
        Cropping,
        Masking,
        SelectingFaces,
        SelectingText,
        DrawingPreview,
        Inpaint_Idle,
        Inpaint_PreCaching,
        Inpaint_Initializing,
        Inpaint_LockingEdits,
        Inpaint_PostProcessing
    }
}
