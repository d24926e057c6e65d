import QtQuick
import imageenhance

// Tells that an earlier filter was changed although later ones build on it: once for each time that its panel is opened.
QtObject {
    id: _top

    required property RightPanelState panelState

    signal track(string name, var properties)

    readonly property Connections _ofPanel: Connections {
        target: _top.panelState

        function onRefiningFilterChanged(): void {
            _private.watched = _top.panelState.refiningFilter;
            _private.before = _private.paramsOf(_private.watched);
        }
    }
    readonly property Connections _ofControls: Connections {
        target: _top.panelState.controls
        enabled: _private.watched !== ""

        function onCurrentControlsChanged(): void {
            if (_private.paramsOf(_private.watched) === _private.before)
                return;
            const name = _private.watched;
            _private.watched = "";
            const order = _top.panelState.controls.filterOrder;
            const index = order.indexOf(name);
            if (index < 0 || index === order.length - 1)
                return;
            _top.track("Previous Stack Item Edited", {
                "filterOrder": order.join(","),
                "editedFilter": name,
                "index": index,
                "numberFromTop": order.length - 1 - index
            });
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property string watched: ""
        property string before: ""

        function paramsOf(name: string): string {
            return name === "" ? "" : JSON.stringify(_top.panelState.controls.currentFilter(name));
        }
    }
}
