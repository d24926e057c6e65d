import QtQuick
import TControls
import imageenhance
import "../../../utils/autopilotSteps.mjs" as Steps

// Which steps of an Autopilot run are shown, how far each is, and what is said of it. Follows what the engine reports on
// the picture that is shown, and nothing else. Knows no screen.
QtObject {
    id: _top

    required property TControls controls
    required property ImageProcessor engine
    required property bool imageOpen
    required property bool loading
    required property string loadingStatus // what the load is doing; empty when idle
    required property bool lensCorrectionEnabled
    required property int lensCorrected // OptionalBoolean: whether the loaded picture was

    // In the order of the run.
    readonly property list<int> steps: [Steps.Step.Loading, Steps.Step.Subject, Steps.Step.Faces, Steps.Step.Params, Steps.Step.Final].filter(step => _private.filter.includes(step) && _private.isPossible(step))
    readonly property var problems: _private.uid !== "" && _private.uid === engine.inputImage.uid ? _private.problems : ({})
    readonly property int currentStep: {
        const step = Steps.current(problems, imageOpen, loading);
        if (step !== undefined)
            return step;
        console.warn("Could not determine current step!", JSON.stringify(problems));
        return Steps.Step.NoFiles;
    }

    // The steps of the next run, as numbers or words; what is known of the run before is forgotten.
    function setFilter(list: var): void {
        _private.filter = Steps.numbers(list);
        _private.uid = "";
        _private.problems = {};
    }

    function statusOf(step: int): int {
        return Steps.status(step, currentStep, _private.isSkipped(step));
    }

    function textOf(step: int): string {
        switch (statusOf(step)) {
        case Steps.Status.Skipped:
            return qsTr("Skipped");
        case Steps.Status.Complete:
            return _private.result(step);
        case Steps.Status.InProgress:
            return step === Steps.Step.Loading && loadingStatus !== "" ? loadingStatus : _private.task(step);
        default:
            return _private.task(step);
        }
    }

    readonly property Connections _ofEngine: Connections {
        target: _top.engine

        // While another image is being read, the engine still holds the one before.
        function onAutoProblemsUpdated(uid: string, problems: var): void {
            const input = _top.engine.inputImage;
            if (uid !== "" && uid === input.uid && input.filepath === _top.controls.currentImage)
                _private.merge(uid, problems);
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property list<int> filter
        property string uid: "" // of the picture that the problems are of
        property var problems: ({})
        property list<int> proven // steps that not every engine has

        function merge(uid: string, more: var): void {
            problems = Object.assign({}, uid === _private.uid ? problems : {}, more);
            _private.uid = uid;
            const news = Steps.provenBy(problems).filter(step => !proven.includes(step));
            if (news.length > 0)
                proven = [...proven, ...news];
        }

        function isPossible(step: int): bool {
            return (step !== Steps.Step.Subject && step !== Steps.Step.Faces) || proven.includes(step);
        }

        function isSkipped(step: int): bool {
            if (step === Steps.Step.Subject)
                return _top.controls.subjectSettings.model === "none";
            return step === Steps.Step.Faces && _top.problems.faceCount === -1;
        }

        function task(step: int): string {
            switch (step) {
            case Steps.Step.Loading:
                return qsTr("Loading image");
            case Steps.Step.Subject:
                return qsTr("Detecting subject");
            case Steps.Step.Faces:
                return qsTr("Detecting faces");
            case Steps.Step.Params:
                return qsTr("Detecting noise and blur levels");
            default:
                return qsTr("Calculating auto-suggested values");
            }
        }

        function result(step: int): string {
            switch (step) {
            case Steps.Step.Loading:
                return loaded();
            case Steps.Step.Subject:
                return _top.problems.existSalient ? qsTr("Detected subject") : qsTr("No subject detected");
            case Steps.Step.Faces:
                const count = Steps.faceCount(_top.problems);
                return (count === 1 ? qsTr("Detected %1 face") : qsTr("Detected %1 faces")).arg(count);
            case Steps.Step.Params:
                return qsTr("Detected %1 noise and %2 blur").arg(word(Steps.noiseWord(_top.problems))).arg(word(Steps.blurWord(_top.problems)));
            default:
                return qsTr("Calculated auto-suggested values");
            }
        }

        function loaded(): string {
            if (!_top.controls.isRaw || !_top.lensCorrectionEnabled || _top.lensCorrected === OptionalBoolean.Unset)
                return qsTr("Image loaded");
            return _top.lensCorrected === OptionalBoolean.True ? qsTr("Image loaded and lens corrected") : qsTr("Image loaded, no lens correction found");
        }

        function word(level: string): string {
            return {
                "low": qsTr("low"),
                "medium": qsTr("medium"),
                "high": qsTr("high"),
                "severe": qsTr("severe")
            }[level];
        }
    }
}
