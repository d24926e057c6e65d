import QtQuick
import QtQuick.Window
import PebbleUI
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
    required property bool dialogOpen

    readonly property alias titleBar: _titleBar
    readonly property alias preview: _preview
    readonly property alias panel: _panel

    signal browseImages // by a file dialog that has forgotten the last choice
    signal addImages

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
    WorkArea {
        anchors { left: parent.left; right: parent.right; top: _titleBar.bottom; bottom: parent.bottom }
        preview: _preview
        panel: _panel
        windowState: _top.windowState
        imageUtils: _top.windowState.helpers.imageUtils
        recentFiles: _top.recentFiles
        commands: _top.commands
        theme: _theme
        onBrowseImages: _top.browseImages()
    }
    RightPanel {
        id: _panel
        controls: _top.windowState.controls
        settings: _top.settings
        navigator: _preview.navigator
        imageOpen: _top.windowState.imageOpen
    }
    ImagePreview {
        id: _preview
        engine: _top.engine
        windowState: _top.windowState
        settings: _top.settings
        panKeyHeld: _top.keyState.panKeyHeld
        originalKeyHeld: _top.keyState.spaceHeld || _top.keyState.slashHeld
        navigatorWidth: _panel.navigatorWidth
        onOpenImageDialog: _top.addImages()
        onFocusWanted: _top.takeFocus()
    }
    FocusScope {
        id: _globalFocus
        focus: true
        Keys.onPressed: event => event.accepted = _top.keyState.pressed(event.key, event.modifiers, event.isAutoRepeat)
        Keys.onReleased: event => event.accepted = _top.keyState.released(event.key, event.modifiers, event.isAutoRepeat)
    }
    AppShortcuts {
        commands: _top.commands
        preview: _preview
        windowState: _top.windowState
        active: !_top.dialogOpen
    }
}
