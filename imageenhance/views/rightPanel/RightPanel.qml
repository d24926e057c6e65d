import QtQuick
import PebbleUI
import TControls
import imageenhance

// The column at the window's right edge: the navigator on top, the enhancements under it. Owns the edit mode of the
// whole window.
Rectangle {
    id: _top

    required property TControls controls
    required property MainSettings settings
    required property Item navigator // shown in the panel's slot
    required property bool imageOpen

    readonly property int fullWidth: 272
    readonly property int collapsedWidth: 48
    readonly property bool collapsed: settings.rightPanelCollapsed && editMode !== EditMode.Crop
    readonly property alias editMode: _private.editMode
    readonly property alias animating: _animation.running
    readonly property int navigatorWidth: fullWidth
    readonly property bool saveButtonActive: false

    readonly property alias fileSize: _private.fileSize // of a save with the present settings; 0 when unknown
    readonly property alias fileSizeError: _private.fileSizeError

    signal estimateFileSize

    function closeRefineMode(): void {
        _private.editMode = EditMode.None;
    }

    function showSteps(steps: var): void {
        _private.steps = steps;
    }

    // Of the picture before it is enlarged.
    function updateFileSizeEstimate(fileSize: real): void {
        const enhance = controls.currentControls[controls.categories.enhance];
        const scale = enhance?.enabled ? enhance.params?.scale ?? 1 : 1;
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

    Item {
        id: _navigatorSlot

        width: _top.fullWidth
        height: _top.navigator?.implicitHeight ?? 0
        visible: !_top.collapsed && _top.imageOpen
    }

    QtObject {
        id: _private

        property int editMode: EditMode.None
        property var steps: []
        property real fileSize: 0
        property string fileSizeError: ""

        function takeNavigator(): void {
            if (_top.navigator)
                _top.navigator.parent = _navigatorSlot;
        }
    }
}
