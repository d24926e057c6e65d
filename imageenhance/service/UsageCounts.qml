import QtQuick

// How often the side panel was folded and the floating panel docked in this session, for the event at its end.
QtObject {
    id: _top

    required property bool panelCollapsed
    required property bool panelDocked

    readonly property alias sidebarToggled: _private.sidebar
    readonly property alias menuDockedToggled: _private.menu

    onPanelCollapsedChanged: _private.sidebar += _private.counts
    onPanelDockedChanged: _private.menu += _private.counts
    Component.onCompleted: _private.counts = 1

    readonly property QtObject _private: QtObject {
        id: _private

        property int counts: 0 // 1 once the stored values are final
        property int sidebar: 0
        property int menu: 0
    }
}
