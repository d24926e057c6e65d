import QtQuick
import PebbleUI
import imageenhance

// The menu of the open refine panel, one for all panels.
PbMenu {
    id: _top

    required property EnhancementActions actions
    required property RefinePlacement placement

    readonly property string _filterName: actions.panelState.refiningFilter
    readonly property bool _isRaw: _filterName === actions.panelState.controls.categories.raw

    title: qsTr("Panel menu")
    onAboutToShow: _private.filterEnabled = actions.isEnabled(_filterName)

    PbMenuItem {
        text: _private.filterEnabled ? qsTr("Hide enhancement") : qsTr("Show enhancement")
        visible: !_top._isRaw
        onTriggered: _top.actions.toggleEnabled(_top._filterName)
    }
    PbMenuItem {
        text: qsTr("Remove enhancement")
        visible: !_top._isRaw
        onTriggered: _top.actions.remove(_top._filterName)
    }
    PbMenu {
        title: qsTr("Panel")

        PbMenuItem {
            text: qsTr("Close")
            onTriggered: _top.actions.closePanel()
        }
        PbMenuItem {
            text: _top.placement.docked ? qsTr("Undock from sidebar") : qsTr("Dock to sidebar")
            onTriggered: _top.placement.docked ? _top.placement.undock() : _top.placement.dock()
        }
    }

    QtObject {
        id: _private
        property bool filterEnabled: true
    }
}
