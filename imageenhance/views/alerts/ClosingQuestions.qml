import QtQuick
import imageenhance

// The flows that end with an image, several, or the window closed, and the questions they ask.
Item {
    id: _top

    required property var controls // TControls
    required property var engine // ImageProcessor
    required property var osUtils // OSUtils
    required property MainSettings settings
    required property bool imageOpen

    readonly property alias quit: _quit
    readonly property bool anyOpen: _exitWarning.visible || _closeWarning.visible || _severalWarning.visible

    signal closeRefineMode
    signal closeWindow
    signal leaving
    signal done // the keyboard goes back to the window

    function closeImage(index: int): void {
        _one.closeImage(index);
    }

    function closeSelectedImages(): void {
        _several.closeSelectedImages();
    }

    function closeAllImages(): void {
        _several.closeAllImages();
    }

    ClosingFlow {
        id: _one
        controls: _top.controls
        engine: _top.engine
        onAskToClose: _closeWarning.open()
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
        onAskToQuit: _exitWarning.open()
        onCloseWindow: _top.closeWindow()
        onLeaving: _top.leaving()
    }

    QuestionDialog {
        id: _exitWarning
        objectName: "exitWarningPrompt"
        messageText: qsTr("Are you sure you want to exit? Any unsaved changes will be lost.")
        confirmText: qsTr("Close")
        onAccepted: _quit.confirm()
        onClosed: _top.done()
    }

    QuestionDialog {
        id: _closeWarning
        objectName: "closeWarningPrompt"
        messageText: qsTr("Are you sure you want to close this image? Any unsaved changes will be lost.")
        confirmText: qsTr("Close")
        onAccepted: _one.confirm()
        onRejected: _one.cancel()
        onClosed: _top.done()
    }

    QuestionDialog {
        id: _severalWarning
        objectName: "closeSeveralPrompt"
        confirmText: qsTr("Close")
        onAccepted: _several.confirm()
        onRejected: _several.cancel()
        onClosed: _top.done()

        function ask(question: string, consequence: string): void {
            messageText = question + " " + consequence;
            open();
        }
    }
}
