pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI
import TControls
import TFilterGenerator
import TPresetsManager
import imageenhance

// The column at the window's right edge: the navigator on top, what is done to the image under it, the buttons that
// export at the bottom. Owns the edit mode of the whole window; what happens without a screen is in PanelLogic.
Rectangle {
    id: _top

    required property ImageProcessor engine
    required property WindowState windowState
    required property MainSettings settings
    required property TPresetsManager presets
    required property TFilterGenerator generator
    required property Item navigator // shown in the panel's slot
    required property Item workArea // over the work area: what opens beside the panel lies there
    required property bool shiftHeld
    property bool canExport: false // somebody takes what is to be saved

    readonly property TControls controls: windowState.controls
    readonly property alias logic: _logic
    readonly property alias autopilotStatus: _column.autopilotStatus
    readonly property int editMode: _logic.modes.editMode
    readonly property int fullWidth: 272
    readonly property int collapsedWidth: 48
    readonly property bool collapsed: settings.rightPanelCollapsed && editMode !== EditMode.Crop
    readonly property alias animating: _animation.running
    readonly property int navigatorWidth: fullWidth
    readonly property bool saveButtonActive: windowState.imageOpen && !windowState.isLoading && !windowState.autopilotRunning && editMode !== EditMode.Crop
    readonly property bool addingFilter: _logic.stack.addingFilter
    readonly property bool enhancementsPanelOpen: _beside.addPanel.open
    readonly property real sidebarOffset: _beside.sidebarOffset // what the preview gives up at its right side
    readonly property alias suggestions: _logic.suggestions

    readonly property alias fileSize: _private.fileSize // of a save with the present settings; 0 when unknown
    readonly property alias fileSizeError: _private.fileSizeError

    signal estimateFileSize
    signal saveRequested(bool quick)
    signal saveAsPreset
    signal editPreset(string name)
    signal deletePreset(string name)
    signal focusWanted // the keyboard goes back to the window

    function closeRefineMode(): void {
        _logic.stack.closeRefineMode();
    }

    function showSteps(steps: var): void {
        autopilotStatus.setFilter(steps);
    }

    function readyToAddFilters(): void {
        _logic.readyToAddFilters();
    }

    function toggleEnhancementsPanel(): void {
        if (windowState.imageOpen && !windowState.autopilotRunning)
            _beside.addPanel.toggle();
    }

    // Up or Down while nothing else has the keyboard.
    function arrowPressed(event: KeyEvent): void {
        event.accepted = event.modifiers === Qt.NoModifier || event.modifiers === Qt.KeypadModifier;
        if (event.accepted)
            focusFirstItem();
    }

    function focusFirstItem(): void {
        _beside.addPanel.focusFirstItem();
    }

    function focusApplyAutopilot(): void {
        _beside.addPanel.focusApplyAutopilot();
    }

    // Of the picture before it is enlarged.
    function updateFileSizeEstimate(fileSize: real): void {
        const enhance = controls.currentFilter(controls.categories.enhance);
        const scale = enhance.enabled ? enhance.params.scale ?? 1 : 1;
        _private.fileSize = fileSize * scale * scale;
        _private.fileSizeError = "";
    }

    function fileSizeEstimateError(why: string): void {
        _private.fileSize = 0;
        _private.fileSizeError = why;
    }

    width: collapsed ? collapsedWidth : fullWidth
    color: PebbleStyle.color.panelBkg
    clip: true
    onNavigatorChanged: _private.takeNavigator()
    Component.onCompleted: _private.takeNavigator()

    Behavior on width {
        NumberAnimation {
            id: _animation
            duration: 125
        }
    }

    PanelLogic {
        id: _logic
        engine: _top.engine
        presets: _top.presets
        generator: _top.generator
        settings: _top.settings
        windowState: _top.windowState
        actions.fileSize: _private.fileSize
        actions.fileSizeError: _private.fileSizeError
        actions.onEstimateFileSize: _top.estimateFileSize()
        onAutopilotAdded: {
            if (_top.shiftHeld !== _top.enhancementsPanelOpen)
                _beside.addPanel.toggle();
        }
    }
    PanelLayer {
        id: _beside
        parent: _top.workArea
        anchors.fill: parent
        logic: _logic
        column: _top
        anchorItem: _controlBar.addButton
        shiftHeld: _top.shiftHeld
        onEditPreset: name => _top.editPreset(name)
        onDeletePreset: name => _top.deletePreset(name)
        onFocusWanted: _top.focusWanted()
    }

    Item {
        id: _navigatorSlot

        width: _top.fullWidth
        height: visible ? _top.navigator?.implicitHeight ?? 0 : 0
        visible: !_top.collapsed && _top.windowState.imageOpen
    }
    PanelControlBar {
        id: _controlBar
        anchors { left: parent.left; right: parent.right; top: _navigatorSlot.bottom }
        visible: _top.windowState.imageOpen && _top.editMode !== EditMode.Crop
        collapsed: _top.collapsed
        panelOpen: _top.enhancementsPanelOpen
        enabled: !_top.windowState.autopilotRunning
        steps: _logic.steps
        onToggleAddPanel: _top.toggleEnhancementsPanel()
    }
    WorkingColumn {
        id: _column
        anchors { left: parent.left; right: parent.right; top: _controlBar.bottom; bottom: _exports.top }
        visible: _top.editMode !== EditMode.Crop
        logic: _logic
        collapsed: _top.collapsed
        onSaveAsPreset: _top.saveAsPreset()
    }
    ExportButtons {
        id: _exports
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        visible: _top.windowState.imageOpen
        collapsed: _top.collapsed
        windowState: _top.windowState
        active: _top.saveButtonActive && _top.canExport
        onSaveRequested: quick => _top.saveRequested(quick)
    }

    // A floating refine panel may be dropped here.
    Rectangle {
        anchors { left: parent.left; top: parent.top; bottom: parent.bottom }
        width: 3
        visible: _logic.stack.canReattach
        color: PebbleStyle.color.primeBlue
    }

    Connections {
        target: _top.controls

        function onCurrentImageChanged(): void {
            _private.fileSize = 0;
            _private.fileSizeError = "";
        }
    }

    QtObject {
        id: _private

        property real fileSize: 0
        property string fileSizeError: ""

        function takeNavigator(): void {
            if (_top.navigator)
                _top.navigator.parent = _navigatorSlot;
        }
    }
}
