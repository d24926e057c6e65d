import QtQuick
import QtQuick.Window
import TIntegrations
import imageenhance

// What opens beside the right panel, over the work area: the panel of the open filter, and what filters are added from.
Item {
    id: _top

    required property PanelLogic logic
    required property Item column // the right panel
    required property Item anchorItem // opens the add panel
    required property bool shiftHeld

    readonly property alias addPanel: _add
    readonly property alias sidebarOffset: _refining.sidebarOffset

    signal editPreset(string name)
    signal deletePreset(string name)
    signal focusWanted // the keyboard goes back to the window

    readonly property WindowState _window: logic.windowState

    RefineLayer {
        id: _refining
        anchors.fill: parent
        panelState: _top.logic.stack
        actions: _top.logic.actions
        windowState: _top._window
        settings: _top.logic.settings
        columnWidth: _top.column.width
    }
    EnhancementListPanel {
        id: _add
        presets: Array.from(_top.logic.presets.presets) // qmllint disable unresolved-type
        vocabulary: _top.logic.vocabulary
        faceCount: _top.logic.faceCount
        stackHasEnhance: _top.logic.stack.currentFilterStack.includes(_top.logic.controls.categories.enhance)
        noiseLevel: _top.logic.problems.noise_level ?? -1
        blurLevel: _top.logic.problems.blur_level ?? -1
        shiftHeld: _top.shiftHeld
        resizingSupported: _top.logic.resizingSupported
        psFilter: _top._window.integrations.pluginType === TIntegrations.PSFilter
        panelCollapsed: _top.logic.settings.rightPanelCollapsed
        windowHeight: _top.Window.height
        filesListHeight: 0
        anchorItem: _top.anchorItem
        edge: _top.column
        onCloseRefineMode: _top.logic.stack.closeRefineMode()
        onAddFilter: (category, openPanel) => _top.logic.addFilter(category, openPanel)
        onUpscaleAdded: _top.logic.suggestions.removeUpscale()
        onSwitchEditMode: mode => _top.logic.modes.switchEditMode(mode)
        onLoadPreset: (name, keepOpen) => {
            _top.logic.loadPreset(name);
            if (keepOpen)
                focusPreset(name);
        }
        onEditPreset: name => _top.editPreset(name)
        onDeletePreset: name => _top.deletePreset(name)
        onApplyAutopilot: {
            if (!_top.logic.applyAutopilot())
                _top.focusWanted();
        }
        onFocusWanted: _top.focusWanted()
    }
    Connections {
        target: _top.logic.stack

        function onHideAddPanel(): void {
            _add.hide();
        }
    }
    Connections {
        target: _top.logic.modes

        function onEntered(): void {
            _add.hide();
        }
        function onFocusWanted(): void {
            _top.focusWanted();
        }
    }
}
