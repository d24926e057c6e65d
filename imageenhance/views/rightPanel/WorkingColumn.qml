import QtQuick
import PebbleUI
import imageenhance
import "../../utils/reasons.mjs" as Reasons

// The filters on the image, or how far Autopilot is; under them what could be added next.
Item {
    id: _top

    required property RightPanel panel

    readonly property alias autopilotStatus: _status
    readonly property alias actions: _actions

    readonly property PanelLogic _logic: panel.logic
    readonly property bool _empty: _logic.stack.enhancementsModel.count === 0
    // Autopilot has looked, and would add nothing.
    readonly property bool _fine: _empty && _logic.loaded && !_status.visible && _logic.isFineAsItIs

    EnhancementActions {
        id: _actions
        panelState: _top._logic.stack
        fileSize: _top.panel.fileSize
        fileSizeError: _top.panel.fileSizeError
        onEstimateFileSize: _top.panel.estimateFileSize()
        onHoverPreview: (show, mode) => _top._logic.selection.toggleHoverPreview(show, mode)
    }

    EnhancementsListView {
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: _card.visible ? _card.top : parent.bottom }
        visible: !_status.visible
        panelState: _top._logic.stack
        actions: _actions
        mousePressed: _top.panel.windowState.helpers.mouseListener.isMousePressed
        collapsed: _top.panel.collapsed
    }
    FineAsItIs {
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: _top.panel.collapsed ? 0 : PebbleStyle.size.spacingLarge }
        visible: _top._fine
        collapsed: _top.panel.collapsed
        detail: Reasons.sentence(_top.panel.controls.categories.denoise, _top._logic.problems.reasons?.[_top.panel.controls.categories.denoise])
    }
    AutoPilotStatus {
        id: _status
        anchors { left: parent.left; right: parent.right; top: parent.top }
        visible: _top._empty && _top.panel.windowState.autopilotRunning
        controls: _top.panel.controls
        engine: _top.panel.engine
        imageOpen: _top.panel.windowState.imageOpen
        loading: _top.panel.windowState.isLoading
        loadingStatus: _top.panel.windowState.pluginMode ? _top.panel.windowState.integrations.loadingStatus : ""
        lensCorrectionEnabled: _top.panel.settings.lensCorrectionEnabled
        lensCorrected: OptionalBoolean.Unset
        collapsed: _top.panel.collapsed
    }
    SuggestiveAutoPilotCard {
        id: _card
        anchors { left: parent.left; bottom: parent.bottom }
        visible: _top.panel.windowState.imageOpen && !_status.visible
        suggestions: _top.panel.suggestions
        collapsed: _top.panel.collapsed
        onSaveAsPreset: _top.panel.saveAsPreset()
        onApplyAutopilot: _top.panel.applyAutopilot()
        onExpandPanel: _top.panel.settings.rightPanelCollapsed = false
        onHoverSubject: (show, subject) => _top._logic.selection.toggleHoverPreview(show, EditMode.Subject, subject)
    }
}
