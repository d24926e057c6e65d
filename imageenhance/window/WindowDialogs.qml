pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI
import TPresetsManager
import imageenhance

// All that opens over the window, and the flows behind it.
Item {
    id: _top

    required property AppCommands commands
    required property WindowState windowState
    required property ImageProcessor engine
    required property RightPanel panel
    required property MainSettings settings
    required property TPresetsManager presets
    required property bool developerMode
    required property real workAreaTop // below the title bar

    readonly property bool anyOpen: _queue.count > 0
    readonly property alias closing: _closing
    readonly property alias notices: _notices
    readonly property alias toaster: _toaster
    readonly property alias openImageDialog: _openImage
    readonly property alias presetDialogs: _presets
    readonly property alias applyQuestions: _applyQuestions
    readonly property alias batch: _batch
    readonly property alias contextMenu: _contextMenu

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
    PresetDialogs {
        id: _presets
        anchors.fill: parent
        controls: _top.windowState.controls
        presets: _top.presets
        vocabulary: _top.panel.logic.vocabulary
        helpers: _top.windowState.helpers
        queue: _queue
        onSaved: preset => _top.windowState.helpers.presetSaved(preset)
        onWarned: (title, message) => _toaster.warn(title, message)
    }
    BatchApply {
        id: _batch
        controls: _top.windowState.controls
        windowState: _top.windowState
        presets: _top.presets
        onClearAndAddAutopilotFilters: _top.panel.logic.clearAndAddAutopilotFilters()
        onClearEditsColumn: _top.panel.logic.stack.clearEditsColumn()
        onReadyToAddFilters: _top.panel.readyToAddFilters()
        onPresetTriggered: _top.panel.suggestions.regenerate()
        onManuallyTriggeredAP: _top.panel.suggestions.regenerate()
        onWarned: (title, message) => _toaster.warn(title, message)
    }
    PanelQuestions {
        panel: _top.panel
        toaster: _toaster
        presetDialogs: _presets
        applyQuestions: _applyQuestions
    }
    ApplyQuestions {
        id: _applyQuestions
        controls: _top.windowState.controls
        queue: _queue
        onAutopilotConfirmed: {
            _top.panel.logic.stack.clearEditsColumn(true);
            _top.panel.logic.applyAutopilot();
        }
        onAutopilotCancelled: Qt.callLater(_top.panel.focusApplyAutopilot) // once the queue has given the keyboard back
        onAutopilotToSelectedConfirmed: _batch.applyAutopilotToSelected()
        onCurrentSettingsToSelectedConfirmed: _batch.applyCurrentSettingsToSelected()
    }
    RightClickMenu {
        id: _contextMenu
        controls: _top.windowState.controls
        windowState: _top.windowState
        commands: _top.commands
        presets: _top.presets
        onAutopilotToSelectedAsked: _applyQuestions.askAutopilotToSelected()
        onAutopilotToIndexAsked: index => _batch.applyAutopilotToIndex(index)
        onCurrentSettingsToSelectedAsked: _applyQuestions.askCurrentSettingsToSelected()
        onCurrentSettingsToIndexAsked: index => _batch.applyCurrentSettingsToIndex(index)
        onPresetToSelectedAsked: name => _batch.applyNamedPresetToSelected(name)
        onPresetToIndexAsked: (name, index) => _batch.applyNamedPresetToIndex(name, index)
    }
    Toaster {
        id: _toaster
        anchors { right: parent.right; top: parent.top }
        anchors.rightMargin: (_top.windowState.imageOpen ? _top.panel.width + _top.panel.sidebarOffset : 0) + PebbleStyle.size.spacingLarge
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
