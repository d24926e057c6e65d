import QtQuick
import QtQuick.Window
import TIntegrations
import imageenhance

// What opens beside the right panel, over the work area: the panel of the open filter, and what filters are added from.
Item {
    id: _top

    required property RightPanel panel
    required property EnhancementActions actions
    required property Item anchorItem // opens the add panel

    readonly property alias addPanel: _add
    readonly property alias sidebarOffset: _refining.sidebarOffset

    readonly property PanelLogic _logic: panel.logic
    readonly property WindowState _window: panel.windowState

    RefineLayer {
        id: _refining
        anchors.fill: parent
        panelState: _top._logic.stack
        actions: _top.actions
        windowState: _top._window
        settings: _top.panel.settings
        columnWidth: _top.panel.width
    }
    EnhancementListPanel {
        id: _add
        presets: Array.from(_top.panel.presets.presets)
        vocabulary: _top._logic.vocabulary
        faceCount: _top._logic.faceCount
        stackHasEnhance: _top._logic.stack.currentFilterStack.includes(_top.panel.controls.categories.enhance)
        noiseLevel: _top._logic.problems.noise_level ?? -1
        blurLevel: _top._logic.problems.blur_level ?? -1
        shiftHeld: _top.panel.shiftHeld
        resizingSupported: _top._logic.resizingSupported
        psFilter: _top._window.integrations.pluginType === TIntegrations.PSFilter
        panelCollapsed: _top.panel.settings.rightPanelCollapsed
        windowHeight: _top.Window.height
        filesListHeight: 0
        anchorItem: _top.anchorItem
        edge: _top.panel
        onCloseRefineMode: _top._logic.stack.closeRefineMode()
        onAddFilter: (category, openPanel) => _top._logic.stack.addNewFilterToHistory(category, _top._logic.stack.getAdjustedFilterName(category), openPanel)
        onUpscaleAdded: _top.panel.suggestions.removeUpscale()
        onSwitchEditMode: mode => _top._logic.modes.switchEditMode(mode)
        onLoadPreset: (name, keepOpen) => {
            _top._logic.loadPreset(name);
            if (keepOpen)
                focusPreset(name);
        }
        onEditPreset: name => _top.panel.editPreset(name)
        onDeletePreset: name => _top.panel.deletePreset(name)
        onApplyAutopilot: {
            if (!_top.panel.applyAutopilot())
                _top.panel.focusWanted();
        }
        onFocusWanted: _top.panel.focusWanted()
    }
    Connections {
        target: _top._logic.stack

        function onHideAddPanel(): void {
            _add.hide();
        }
    }
    Connections {
        target: _top._logic.modes

        function onEntered(): void {
            _add.hide();
        }
        function onFocusWanted(): void {
            _top.panel.focusWanted();
        }
    }
}
