pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI
import imageenhance

// All that opens over the window, and the flows behind it.
Item {
    id: _top

    required property AppCommands commands
    required property WindowState windowState
    required property ImageProcessor engine
    required property RightPanel panel
    required property MainSettings settings
    required property bool developerMode
    required property real workAreaTop // below the title bar

    readonly property bool anyOpen: _queue.count > 0
    readonly property alias closing: _closing
    readonly property alias notices: _notices
    readonly property alias toaster: _toaster
    readonly property alias openImageDialog: _openImage

    signal closeWindow
    signal done // the keyboard goes back to the window

    DialogQueue {
        id: _queue
        onEmptied: _top.done()
    }
    OpenImageDialog {
        id: _openImage
        imageUtils: _top.windowState.helpers.imageUtils
        onChosen: paths => _top.commands.loadImages(paths)
    }
    ClosingQuestions {
        id: _closing
        controls: _top.windowState.controls
        engine: _top.engine
        osUtils: _top.windowState.helpers.osUtils
        settings: _top.settings
        queue: _queue
        imageOpen: _top.windowState.imageOpen
        onCloseRefineMode: _top.panel.closeRefineMode()
        onCloseWindow: _top.closeWindow()
        onLeaving: _top.windowState.helpers.leave()
    }
    WindowNotices {
        id: _notices
        osUtils: _top.windowState.helpers.osUtils
        imageUtils: _top.windowState.helpers.imageUtils
        toaster: _toaster
        queue: _queue
    }
    Toaster {
        id: _toaster
        anchors { right: parent.right; top: parent.top }
        anchors.rightMargin: (_top.windowState.imageOpen ? _top.panel.width : 0) + PebbleStyle.size.spacingLarge
        anchors.topMargin: _top.workAreaTop + PebbleStyle.size.spacingLarge
    }
    Loader {
        id: _console
        anchors { left: parent.left; bottom: parent.bottom; leftMargin: 24; bottomMargin: 96 }
        active: false
        sourceComponent: DebugConsole {
            controls: _top.windowState.controls
            panel: _top.panel
            settings: _top.settings
        }
    }
    Shortcut {
        sequence: "Ctrl+Shift+D"
        enabled: _top.developerMode
        onActivated: _console.active = !_console.active
    }
}
