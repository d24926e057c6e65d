pragma ComponentBehavior: Bound
import QtQuick
import imageenhance

// Shows and hides the developers' console by key; nothing of it exists before.
Loader {
    id: _top

    required property bool available
    required property var controls // TControls
    required property var panel // RightPanel
    required property MainSettings settings

    active: false
    sourceComponent: DebugConsole {
        controls: _top.controls
        panel: _top.panel
        settings: _top.settings
    }

    Shortcut {
        sequence: "Ctrl+Shift+D"
        enabled: _top.available
        onActivated: _top.active = !_top.active
    }
}
