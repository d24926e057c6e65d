import QtQuick
import TImageSettings

// How an Autopilot run starts and lands. A run that starts sets the image's status to Processing, which holds back
// every run of the preview until the answer is here.
QtObject {
    id: _top

    required property var engine // TEngineController
    required property var controls // TControls
    required property var scheduler // ProcScheduler
    required property bool exporting
    required property string faceDetection // setting autopilotFaceDetect
    required property string subjectType // setting autopilotSubjectType

    // The steps that the status display is to show: "loading", "params", "faces", "subject", "final".
    signal stepsChosen(var steps)
    // An answer stands in the model.
    signal landed
    signal closeRefineMode

    function stepsOfNewImage(): var {
        return ["loading"].concat(_private.steps());
    }

    // The engine has another input image, or the export dialog closed.
    function setupImage(): void {
        if (_top.engine.inputImage.uid && _top.controls.currentControls.autoPilot !== TImageSettings.Off) {
            console.info("Canceling due to input image changing and needing Autopilot to run");
            _private.start({
                "regenerateMask": true
            });
        } else if (_top.exporting) {
            console.info("Exporting proc full");
            _top.scheduler.procFull();
        }
    }

    // A preference of Autopilot changed.
    function rerun(): void {
        _top.stepsChosen(_private.steps());
        _top.closeRefineMode();
        _private.start({});
    }

    function runFaceDetection(): void {
        _top.stepsChosen(["faces"]);
        _private.start({
            "forceFaceDetect": true
        });
    }

    // Models that a run needed were missing and are here now.
    function modelsDownloaded(): void {
        if (_top.controls.currentControls.autoPilot === TImageSettings.Processing)
            _top.engine.autoPilot(_top.engine.inputImage, {
                "regenerateMask": true
            });
        else
            _top.scheduler.procCurrentRoi();
    }

    // An answer for another image is dropped: that of the image now shown will land.
    function finished(uid: string, settings: var): void {
        if (_top.engine.inputImage.uid !== uid || !uid.includes(_top.controls.currentImage))
            return;
        _top.controls.setAutoPilotStatus(TImageSettings.On);
        _top.controls.setAutopilotSettings(settings);
        _top.landed();
    }

    readonly property QtObject _private: QtObject {
        id: _private

        function steps(): var {
            const steps = ["params", "final"];
            if (_top.faceDetection !== "none")
                steps.push("faces");
            if (_top.subjectType !== "none")
                steps.push("subject");
            return steps;
        }

        function start(options: var): void {
            _top.engine.cancelProc();
            _top.controls.setAutoPilotStatus(TImageSettings.Processing);
            _top.engine.autoPilot(_top.engine.inputImage, options);
        }
    }
}
