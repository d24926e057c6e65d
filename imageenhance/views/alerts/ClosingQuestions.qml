import QtQuick
import TControls
import TImageProcessor
import TQmlUtils
import imageenhance

// The flows that end with an image, several, or the window closed, and the questions they ask.
Item {
    id: _top

    required property TControls controls
    required property TEngineController engine
    required property OSUtils osUtils
    required property MainSettings settings
    required property DialogQueue queue
    required property bool imageOpen

    readonly property alias quit: _quit

    signal closeRefineMode
    signal closeWindow
    signal leaving

    // An open question keeps its meaning: none is asked over it.
    function closeImage(index: int): void {
        if (!_top.queue.has(_closeWarning.turn))
            _one.closeImage(index);
    }

    function closeSelectedImages(): void {
        if (!_top.queue.has(_severalWarning.turn))
            _several.closeSelectedImages();
    }

    function closeAllImages(): void {
        if (!_top.queue.has(_severalWarning.turn))
            _several.closeAllImages();
    }

    ClosingFlow {
        id: _one
        controls: _top.controls
        engine: _top.engine
        onAskToClose: _top.queue.ask(_closeWarning.turn)
        onCloseRefineMode: _top.closeRefineMode()
    }

    ClosingSeveralFlow {
        id: _several
        controls: _top.controls
        onAskToCloseSelected: _severalWarning.ask(qsTr("Are you sure you want to close all selected images?"), qsTr("Unsaved changes will be discarded in all selected images. You will not be able to undo this action."))
        onAskToCloseAll: _severalWarning.ask(qsTr("Are you sure you want to close all images?"), qsTr("Unsaved changes will be discarded in all opened images. You will not be able to undo this action."))
        onCloseRefineMode: _top.closeRefineMode()
    }

    QuitFlow {
        id: _quit
        imageOpen: _top.imageOpen
        settings: _top.settings
        osUtils: _top.osUtils
        onAskToQuit: _top.queue.ask(_exitWarning.turn)
        onCloseWindow: _top.closeWindow()
        onLeaving: _top.leaving()
    }

    // An image may go by itself, because its file has. What was asked about the images before is not asked any more:
    // the answer would close others.
    Connections {
        target: _top.controls

        function onImagesClosed(): void {
            _one.cancel();
            _several.cancel();
            _top.queue.done(_closeWarning.turn);
            _top.queue.done(_severalWarning.turn);
        }
    }

    QuestionDialog {
        id: _exitWarning
        objectName: "exitWarningPrompt"
        queue: _top.queue
        turn: "exit"
        messageText: qsTr("Are you sure you want to exit? Any unsaved changes will be lost.")
        confirmText: qsTr("Close")
        onAccepted: _quit.confirm()
    }

    QuestionDialog {
        id: _closeWarning
        objectName: "closeWarningPrompt"
        queue: _top.queue
        turn: "close"
        messageText: qsTr("Are you sure you want to close this image? Any unsaved changes will be lost.")
        confirmText: qsTr("Close")
        onAccepted: _one.confirm()
        onRejected: _one.cancel()
    }

    QuestionDialog {
        id: _severalWarning
        objectName: "closeSeveralPrompt"
        queue: _top.queue
        turn: "close several"
        confirmText: qsTr("Close")
        onAccepted: _several.confirm()
        onRejected: _several.cancel()

        function ask(question: string, consequence: string): void {
            messageText = question + " " + consequence;
            _top.queue.ask(turn);
        }
    }
}
