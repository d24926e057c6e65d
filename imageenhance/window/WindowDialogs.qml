import QtQuick
import imageenhance

// All that opens over the window, and the flows behind it.
Item {
    id: _top

    required property AppCommands commands
    required property Helpers helpers
    required property var controls // TControls
    required property var engine // ImageProcessor
    required property var panel // RightPanel
    required property MainSettings settings
    required property bool imageOpen
    required property bool developerMode

    readonly property bool anyOpen: _closing.anyOpen || _notices.anyOpen
    readonly property alias closing: _closing
    readonly property alias notices: _notices
    readonly property alias openImageDialog: _openImage

    signal closeWindow
    signal done // the keyboard goes back to the window

    OpenImageDialog {
        id: _openImage
        imageUtils: _top.helpers.imageUtils
        onChosen: paths => _top.commands.loadImages(paths)
    }
    ClosingQuestions {
        id: _closing
        controls: _top.controls
        engine: _top.engine
        osUtils: _top.helpers.osUtils
        settings: _top.settings
        imageOpen: _top.imageOpen
        onCloseRefineMode: _top.panel.closeRefineMode()
        onCloseWindow: _top.closeWindow()
        onLeaving: _top.helpers.leave()
        onDone: _top.done()
    }
    WindowNotices {
        id: _notices
        osUtils: _top.helpers.osUtils
        imageUtils: _top.helpers.imageUtils
        onDone: _top.done()
    }
    DebugConsoleLoader {
        anchors { left: parent.left; bottom: parent.bottom; leftMargin: 24; bottomMargin: 96 }
        available: _top.developerMode
        controls: _top.controls
        panel: _top.panel
        settings: _top.settings
    }
}
