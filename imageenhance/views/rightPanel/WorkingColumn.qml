import QtQuick
import PebbleUI
import imageenhance
import "../../utils/reasons.mjs" as Reasons

// The filters on the image, or how far Autopilot is; under them what could be added next.
Item {
    id: _top

    required property PanelLogic logic
    required property bool collapsed

    readonly property alias autopilotStatus: _status

    signal saveAsPreset

    readonly property WindowState _window: logic.windowState
    readonly property bool _empty: logic.stack.enhancementsModel.count === 0
    // Autopilot has looked, and would add nothing.
    readonly property bool _fine: _empty && logic.loaded && !_status.visible && logic.isFineAsItIs

    EnhancementsListView {
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: _card.visible ? _card.top : parent.bottom }
        visible: !_status.visible
        panelState: _top.logic.stack
        actions: _top.logic.actions
        mousePressed: _top._window.helpers.mouseListener.isMousePressed
        collapsed: _top.collapsed
    }
    FineAsItIs {
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: _top.collapsed ? 0 : PebbleStyle.size.spacingLarge }
        visible: _top._fine
        collapsed: _top.collapsed
        detail: Reasons.sentence(_top.logic.controls.categories.denoise, _top.logic.problems.reasons?.[_top.logic.controls.categories.denoise])
    }
    AutoPilotStatus {
        id: _status
        anchors { left: parent.left; right: parent.right; top: parent.top }
        visible: _top._empty && _top._window.autopilotRunning
        controls: _top.logic.controls
        engine: _top.logic.engine
        imageOpen: _top._window.imageOpen
        loading: _top._window.isLoading
        loadingStatus: _top._window.pluginMode ? _top._window.integrations.loadingStatus : ""
        lensCorrectionEnabled: _top.logic.settings.lensCorrectionEnabled
        lensCorrected: OptionalBoolean.Unset
        collapsed: _top.collapsed
    }
    SuggestiveAutoPilotCard {
        id: _card
        anchors { left: parent.left; bottom: parent.bottom }
        visible: _top._window.imageOpen && !_status.visible
        suggestions: _top.logic.suggestions
        collapsed: _top.collapsed
        onSaveAsPreset: _top.saveAsPreset()
        onApplyAutopilot: _top.logic.applyAutopilot()
        onExpandPanel: _top.logic.settings.rightPanelCollapsed = false
        onHoverSubject: (show, subject) => _top.logic.selection.toggleHoverPreview(show, EditMode.Subject, subject)
    }
}
