import QtQuick
import PebbleUI
import imageenhance

// The menu of a row, one for the list.
PbMenu {
    id: _top

    required property EnhancementActions actions

    readonly property RightPanelState _state: actions.panelState
    readonly property bool _unlocked: !_private.locked
    readonly property bool _isRaw: _private.category === _state.controls.categories.raw

    function about(filterName: string, category: string, label: string): void {
        _private.filterName = filterName;
        _private.category = category;
        _private.label = label.toLowerCase();
        _private.filterEnabled = actions.isEnabled(filterName);
        _private.locked = _state.isLocked(filterName);
        _private.several = _state.controls.filterOrder.length > 1;
    }

    title: qsTr("Enhancement")

    PbMenuItem {
        text: (_private.filterEnabled ? qsTr("Hide ") : qsTr("Show ")) + _private.label
        enabled: _top._unlocked
        visible: !_top._isRaw
        onTriggered: _top.actions.toggleEnabled(_private.filterName)
    }
    PbMenuItem {
        text: qsTr("Duplicate ") + _private.label
        enabled: _top._unlocked
        visible: !_top._isRaw && _private.category !== _top._state.controls.categories.enhance
        onTriggered: _top.actions.duplicate(_private.filterName)
    }
    PbMenuItem {
        text: qsTr("Remove enhancement")
        enabled: _top._unlocked
        visible: !_top._isRaw
        onTriggered: _top.actions.remove(_private.filterName)
    }
    PbMenuItem {
        text: qsTr("Remove all enhancements")
        enabled: _private.several
        onTriggered: _top.actions.removeAll()
    }

    QtObject {
        id: _private

        property string filterName: ""
        property string category: ""
        property string label: ""
        property bool filterEnabled: false
        property bool locked: false
        property bool several: false
    }
}
