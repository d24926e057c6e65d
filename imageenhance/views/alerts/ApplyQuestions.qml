import QtQuick
import TControls
import imageenhance

// What is asked before settings are replaced: those of the current image by Autopilot's, or those of the selected images
// by Autopilot's or the current image's.
Item {
    id: _top

    required property TControls controls
    required property DialogQueue queue

    signal autopilotConfirmed
    signal autopilotCancelled
    signal autopilotToSelectedConfirmed
    signal autopilotToSelectedCancelled
    signal currentSettingsToSelectedConfirmed
    signal currentSettingsToSelectedCancelled

    readonly property string _consequence: qsTr("This will overwrite existing settings and cannot be undone.")

    function askAutopilot(): void {
        queue.ask(_autopilot.turn);
    }

    function askAutopilotToSelected(): void {
        queue.ask(_autopilotToSelected.turn);
    }

    function askCurrentSettingsToSelected(): void {
        queue.ask(_settingsToSelected.turn);
    }

    // The answer would reach other images than those that it was asked about.
    function _withdraw(): void {
        for (const question of [_autopilot, _autopilotToSelected, _settingsToSelected])
            queue.done(question.turn);
    }

    Connections {
        target: _top.controls

        function onImagesClosed(): void {
            _top._withdraw();
        }

        function onCurrentIndexChanged(): void {
            _top._withdraw();
        }

        function onSelectedImagesChanged(): void {
            _top._withdraw();
        }
    }

    QuestionDialog {
        id: _autopilot
        objectName: "runAutopilotWarning"
        queue: _top.queue
        turn: "apply Autopilot"
        title: qsTr("Autopilot confirmation")
        messageText: qsTr("Are you sure you want to apply Autopilot?") + " " + qsTr("All enhancements on this photo will be replaced.")
        confirmText: qsTr("Apply")
        onAccepted: _top.autopilotConfirmed()
        onRejected: _top.autopilotCancelled()
    }

    QuestionDialog {
        id: _autopilotToSelected
        objectName: "applyAutopilotToSelectedPrompt"
        queue: _top.queue
        turn: "apply Autopilot to selected"
        messageText: qsTr("Are you sure you want to apply Autopilot settings to all selected images?") + " " + _top._consequence
        confirmText: qsTr("Apply")
        onAccepted: _top.autopilotToSelectedConfirmed()
        onRejected: _top.autopilotToSelectedCancelled()
    }

    QuestionDialog {
        id: _settingsToSelected
        objectName: "applyCurrentSettingsToSelectedPrompt"
        queue: _top.queue
        turn: "apply settings to selected"
        messageText: qsTr("Are you sure you want to apply the currently-displayed image settings to all selected images?") + " " + _top._consequence
        confirmText: qsTr("Apply")
        onAccepted: _top.currentSettingsToSelectedConfirmed()
        onRejected: _top.currentSettingsToSelectedCancelled()
    }
}
