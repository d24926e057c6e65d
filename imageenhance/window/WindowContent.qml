pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import PebbleUI
import TFilterGenerator
import TPresetsManager
import imageenhance

// What is seen of the window: its title bar, the picture and the panel beside it, or the welcome screen. What lies over
// them are WindowDialogs.
Item {
    id: _top

    required property Window window
    required property string appVersion
    required property WindowState windowState
    required property ImageProcessor engine
    required property MainSettings settings
    required property KeyState keyState
    required property AppCommands commands
    required property RecentFiles recentFiles
    required property TPresetsManager presets
    required property TFilterGenerator generator
    required property bool dialogOpen

    readonly property alias titleBar: _titleBar
    readonly property alias preview: _preview
    readonly property alias panel: _panel

    signal browseImages // by a file dialog that has forgotten the last choice
    signal contextMenuRequested(at: point) // in the window's coordinates

    // The keyboard goes back to the window's own keys.
    function takeFocus(): void {
        _globalFocus.forceActiveFocus();
    }

    BaseTheme {
        id: _theme
    }
    WinTitleBar {
        id: _titleBar
        anchors { left: parent.left; right: parent.right }
        window: _top.window
        windowState: _top.windowState
        settings: _top.settings
        appVersion: _top.appVersion
    }

    Item {
        id: _work

        anchors { left: parent.left; right: parent.right; top: _titleBar.bottom; bottom: parent.bottom }
        visible: _top.windowState.imageOpen

        ImagePreview {
            id: _preview
            anchors { left: parent.left; right: _panel.left; rightMargin: _panel.sidebarOffset; top: parent.top; bottom: parent.bottom }
            visible: !_top.windowState.hidesPreview
            engine: _top.engine
            windowState: _top.windowState
            settings: _top.settings
            originalKeyHeld: _top.keyState.spaceHeld || _top.keyState.slashHeld
            navigatorWidth: _panel.navigatorWidth
            onOpenImageDialog: _top.commands.openFile()
            onShowRightClickMenuAtPoint: point => _top.contextMenuRequested(point)
            onFocusWanted: _top.takeFocus()
        }
        RightPanel {
            id: _panel
            anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
            engine: _top.engine
            windowState: _top.windowState
            settings: _top.settings
            presets: _top.presets
            generator: _top.generator
            navigator: _preview.navigator
            workArea: _beside
            shiftHeld: _top.keyState.shiftHeld
            onFocusWanted: _top.takeFocus()
        }
        // What opens beside the panel has the keys that nothing in it wants.
        FocusScope {
            id: _beside
            anchors.fill: parent
            Keys.onPressed: event => {
                _top.keyState.pressed(event.key, event.modifiers, event.isAutoRepeat);
                event.accepted = false;
            }
            Keys.onReleased: event => {
                _top.keyState.released(event.key, event.modifiers, event.isAutoRepeat);
                event.accepted = false;
            }
        }
    }

    Loader {
        anchors.fill: _work
        active: !_top.windowState.imageOpen
        onActiveChanged: _top.recentFiles.clean()
        sourceComponent: WelcomeScreen {
            recentFiles: _top.recentFiles.list
            imageUtils: _top.windowState.helpers.imageUtils
            dropEnabled: !_top.windowState.pluginMode
            onBrowseImages: _top.browseImages()
            onOpenRecentFile: path => _top.commands.openRecentFile(path)
            onClearRecentFiles: _top.recentFiles.clear()
            onOpenUrl: url => _top.commands.openUrl(url)
        }
    }

    DropArea {
        id: _drop

        anchors.fill: _work
        enabled: _top.windowState.imageOpen && !_top.windowState.isExporting && !_top.windowState.pluginMode

        Rectangle {
            anchors.fill: parent
            visible: _drop.containsDrag && !_drop.drag.source
            color: _theme.primary50
            opacity: 0.5
        }
    }

    FocusScope {
        id: _globalFocus
        focus: true
        Keys.onPressed: event => event.accepted = _top.keyState.pressed(event.key, event.modifiers, event.isAutoRepeat)
        Keys.onUpPressed: event => _panel.arrowPressed(event)
        Keys.onDownPressed: event => _panel.arrowPressed(event)
        Keys.onReleased: event => event.accepted = _top.keyState.released(event.key, event.modifiers, event.isAutoRepeat)
    }
    AppShortcuts {
        commands: _top.commands
        preview: _preview
        panel: _panel
        windowState: _top.windowState
        active: !_top.dialogOpen
    }
}
