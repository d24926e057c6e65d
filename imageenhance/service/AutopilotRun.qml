import QtQuick
import TImageSettings
import imageenhance

// How an Autopilot run starts and lands. A run that starts sets the image's status to Processing, which holds back
// every run of the preview until the answer is here.
QtObject {
    id: _top

    required property ImageProcessor engine
    required property RightPanel panel
    required property WindowState windowState
    required property MainSettings settings
    required property ProcScheduler scheduler

    // Settings change in a burst: only the filter order at its end counts.
    readonly property alias addingFilters: _private.addingFilters

    // The steps that the status display is to show.
    function stepsOfNewImage(): list<string> {
        return ["loading", ..._private.steps()];
    }

    // The engine has another input image, or the export dialog closed.
    function setupImage(): void {
        _top.engine.resetAll();
        if (_top.engine.inputImage.uid && _top.windowState.controls.currentControls.autoPilot !== TImageSettings.Off) {
            console.info("Canceling due to input image changing and needing Autopilot to run");
            _private.start({
                "regenerateMask": true
            });
        } else if (_top.windowState.isExporting) {
            console.info("Exporting proc full");
            _top.scheduler.procFull();
        }
    }

    // A preference of Autopilot changed.
    function rerun(): void {
        _top.panel.showSteps(_private.steps());
        _top.panel.closeRefineMode();
        _private.start({});
    }

    function runFaceDetection(): void {
        _top.panel.showSteps(["faces"]);
        _private.start({
            "forceFaceDetect": true
        });
    }

    readonly property Connections _ofEngine: Connections {
        target: _top.engine

        function onInputImageChanged(): void {
            _top.setupImage();
        }

        // An answer for another image is dropped: that of the image now shown will land. While an edit mode is open,
        // the answer is kept and the filters stay as they are.
        function onAutoPilotFinished(uid: string, answer: var): void {
            if (_top.engine.inputImage.uid !== uid || !uid.includes(_top.windowState.controls.currentImage))
                return;
            _private.addingFilters = !_top.windowState.isRefining;
            _top.windowState.controls.landAutopilot(answer, _top.settings.autopilotRecommendFilters, _private.addingFilters);
            _private.addingFilters = false;
            _top.panel.readyToAddFilters();
        }

        // The measured levels belong to the record.
        function onAutoProblemsUpdated(uid: string, problems: var): void {
            const controls = _top.windowState.controls;
            if (_top.engine.inputImage.uid !== uid || !uid.includes(controls.currentImage))
                return;
            if (problems.noise_level !== undefined)
                controls.setNoiseLevel(problems.noise_level);
            if (problems.blur_level !== undefined)
                controls.setBlurLevel(problems.blur_level);
        }

        // Models that a run needed were missing and are here now.
        function onDownloadingModelsChanged(): void {
            if (_top.engine.downloadingModels)
                return;
            if (_top.windowState.controls.currentControls.autoPilot === TImageSettings.Processing)
                _top.engine.autoPilot(_top.engine.inputImage, {
                    "regenerateMask": true
                });
            else
                _top.scheduler.procCurrentRoi();
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property bool addingFilters: false

        function steps(): list<string> {
            const steps = ["params", "final"];
            if (_top.settings.autopilotFaceDetect !== "none")
                steps.push("faces");
            if (_top.settings.autopilotSubjectType !== "none")
                steps.push("subject");
            return steps;
        }

        function start(options: var): void {
            _top.engine.cancelProc();
            _top.windowState.controls.setAutoPilotStatus(TImageSettings.Processing);
            _top.engine.autoPilot(_top.engine.inputImage, options);
        }
    }
}
