import QtQuick
import imageenhance

// Joins the model, the reader, the engine and the preview: the road of an image from its opening to the picture on
// the screen.
QtObject {
    id: _top

    required property var engine // ImageProcessor
    required property var writer // TImageWriter
    required property var preview // ImagePreview
    required property var panel // RightPanel
    required property WindowState state
    required property MainSettings settings

    readonly property alias scheduler: _scheduler
    readonly property alias autopilot: _autopilot
    readonly property alias selections: _selections
    readonly property alias sizes: _sizes

    signal loadingFailed(string path, string error)

    readonly property ProcScheduler _schedulerObject: ProcScheduler {
        id: _scheduler

        engine: _top.engine
        controls: _top.state.controls
        imageUtils: _top.state.helpers.imageUtils
        imageDataUtils: _top.state.helpers.imageDataUtils
        preview: _top.preview
        loading: _top.state.isLoading
        autopilotRunning: _top.state.autopilotRunning
        exporting: _top.state.isExporting
        imageOpen: _top.state.imageOpen
        panelAnimating: _top.panel.animating
        addingFilter: _top.panel.addingFilter
        editingMask: _top.state.isEditingSubject || _top.state.isSelectingText
        mousePressed: _top.state.helpers.mouseListener.isMousePressed
        cropRect: _top.state.currentCropRect
        cropRotation: _top.state.currentRotation
    }

    readonly property AutopilotRun _autopilotObject: AutopilotRun {
        id: _autopilot

        engine: _top.engine
        controls: _top.state.controls
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

        controls: _top.state.controls
        engine: _top.engine
        reader: _top.state.reader
        autopilot: _autopilot
        scheduler: _scheduler
        exporting: _top.state.isExporting
        onLoadingFailed: (path, error) => _top.loadingFailed(path, error)
    }

    readonly property ProcTriggers _triggersObject: ProcTriggers {
        scheduler: _scheduler
        engine: _top.engine
        preview: _top.preview
        panel: _top.panel
    }

    readonly property Selections _selectionsObject: Selections {
        id: _selections

        engine: _top.engine
        controls: _top.state.controls
        preview: _top.preview
        exporting: _top.state.isExporting
    }

    readonly property SizeEstimates _sizesObject: SizeEstimates {
        id: _sizes

        writer: _top.writer
        imageUtils: _top.state.helpers.imageUtils
        integrations: _top.state.integrations
        settings: _top.settings
        engine: _top.engine
        panel: _top.panel
        currentImage: _top.state.controls.currentImage
    }

    readonly property Connections _ofControls: Connections {
        target: _top.state.controls

        function onCurrentIndexChanged(): void {
            _opening.currentIndexChanged();
        }

        // The next image takes the place of the one that went.
        function onImagesClosed(): void {
            const count = _top.state.controls.loadedImages.length;
            if (count === 0)
                _top.state.reader.clear();
            else if (_top.state.controls.currentImage !== _top.state.reader.filepath)
                _top.state.controls.setCurrentIndex(Math.min(Math.max(_top.state.controls.currentIndex, 0), count - 1), true);
        }
    }

    readonly property Connections _ofReader: Connections {
        target: _top.state.reader

        function onImagedataChanged(): void {
            _opening.imageDataChanged(_top.state.reader.imagedata);
        }

        function onErrorChanged(): void {
            _opening.readerFailed(_top.state.reader.error);
        }
    }

    readonly property Connections _ofEngine: Connections {
        target: _top.engine

        function onInputImageChanged(): void {
            _top.engine.resetAll();
            _autopilot.setupImage();
        }

        function onAutoPilotFinished(uid: string, settings: var): void {
            _autopilot.finished(uid, settings);
        }

        function onProcResultChanged(): void {
            console.info("[PROC] Proc finished");
        }

        function onDownloadingModelsChanged(): void {
            if (!_top.engine.downloadingModels)
                _autopilot.modelsDownloaded();
        }
    }
}
