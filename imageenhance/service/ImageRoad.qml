import QtQuick
import imageenhance

// Joins the model, the reader, the engine and the preview: the road of an image from its opening to the picture on
// the screen.
QtObject {
    id: _top

    required property var controls // TControls
    required property var engine // ImageProcessor
    required property var reader // TImageReader
    required property var preview // ImagePreview
    required property var panel // RightPanel
    required property Helpers helpers
    required property WindowState state
    required property MainSettings settings

    readonly property alias scheduler: _scheduler
    readonly property alias autopilot: _autopilot

    signal loadingFailed(string path, string error)

    readonly property ProcScheduler _schedulerObject: ProcScheduler {
        id: _scheduler

        engine: _top.engine
        controls: _top.controls
        imageUtils: _top.helpers.imageUtils
        imageDataUtils: _top.helpers.imageDataUtils
        preview: _top.preview
        loading: _top.state.isLoading
        autopilotRunning: _top.state.autopilotRunning
        exporting: _top.state.isExporting
        imageOpen: _top.state.imageOpen
        panelAnimating: _top.panel.animating
        addingFilter: _top.panel.addingFilter
        editingMask: _top.state.isEditingSubject || _top.state.isSelectingText
        mousePressed: _top.helpers.mouseListener.isMousePressed
        cropRect: _top.state.currentCropRect
        cropRotation: _top.state.currentRotation
    }

    readonly property AutopilotRun _autopilotObject: AutopilotRun {
        id: _autopilot

        engine: _top.engine
        controls: _top.controls
        scheduler: _scheduler
        exporting: _top.state.isExporting
        faceDetection: _top.settings.autopilotFaceDetect
        subjectType: _top.settings.autopilotSubjectType
        onStepsChosen: steps => _top.panel.showSteps(steps)
        onCloseRefineMode: _top.panel.closeRefineMode()
        onLanded: _top.panel.readyToAddFilters()
    }

    readonly property ImageOpening _openingObject: ImageOpening {
        id: _opening

        controls: _top.controls
        engine: _top.engine
        reader: _top.reader
        autopilot: _autopilot
        scheduler: _scheduler
        exporting: _top.state.isExporting
        onLoadingFailed: (path, error) => _top.loadingFailed(path, error)
    }

    readonly property Connections _ofControls: Connections {
        target: _top.controls

        function onCurrentIndexChanged(): void {
            _opening.currentIndexChanged();
        }

        // The next image takes the place of the one that went.
        function onImagesClosed(): void {
            const count = _top.controls.loadedImages.length;
            if (count === 0)
                _top.reader.clear();
            else if (_top.controls.currentImage !== _top.reader.filepath)
                _top.controls.setCurrentIndex(Math.min(Math.max(_top.controls.currentIndex, 0), count - 1), true);
        }
    }

    readonly property Connections _ofReader: Connections {
        target: _top.reader

        function onImagedataChanged(): void {
            _opening.imageDataChanged(_top.reader.imagedata);
        }

        function onErrorChanged(): void {
            _opening.readerFailed(_top.reader.error);
        }
    }

    readonly property Connections _ofEngine: Connections {
        target: _top.engine

        function onInputImageChanged(): void {
            _top.engine.resetAll();
            _autopilot.setupImage();
        }

        function onParamsChanged(): void {
            _scheduler.paramsChanged();
        }

        function onAutoPilotFinished(uid: string, settings: var): void {
            _autopilot.finished(uid, settings);
        }

        function onAutoProblemsUpdated(uid: string, problems: var): void {
            _top.engine.takeProblems(uid, problems);
        }

        function onProcResultChanged(): void {
            console.info("[PROC] Proc finished");
        }

        function onDownloadingModelsChanged(): void {
            if (!_top.engine.downloadingModels)
                _autopilot.modelsDownloaded();
        }
    }

    readonly property Connections _ofPreview: Connections {
        target: _top.preview

        function onRequestProc(roi: rect): void {
            _scheduler.viewChanged(roi);
        }

        function onProcRoiChanged(): void {
            _scheduler.procRoiChanged();
        }
    }

    readonly property Connections _ofPanel: Connections {
        target: _top.panel

        function onRequestProc(): void {
            _scheduler.requestFrom("right panel");
        }

        function onEditModeChanged(): void {
            _scheduler.requestFrom("edit mode changed");
        }
    }
}
