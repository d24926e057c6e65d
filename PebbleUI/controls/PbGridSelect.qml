pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI

// Options in a grid, one or (with `multiSelect`) any number of which are selected, by index. An entry of
// the model may carry `type`, `iconSource`, `showBeta`, `enabled`, `showValue` and `showAuto` beside its
// text and value. Tab goes from option to option, the arrow keys go over the grid, Space and Return press.
Rectangle {
    id: _top

    property int column: 2
    property int row: Math.ceil((model?.length ?? 0) / Math.max(1, column))
    property var model: []
    property string textRole: "text"
    property string valueRole: "value"
    property bool multiSelect: false

    // -1: none.
    property int selectedItem: 0
    property var selectedItems: []
    property bool alignLeft: false

    // The options share the width instead of each taking what it needs.
    property bool fillWidth: true

    // The index that Autopilot proposes; -1: none.
    property int autoValue: -1
    property bool showValue: false

    // The user pressed an option.
    signal activated(int index)

    function reset(): void {
        const target = autoValue !== -1 ? autoValue : 0;
        PbBoundProperty.write(_top, "selectedItem", target);
        if (multiSelect)
            PbBoundProperty.write(_top, "selectedItems", [target]);
    }

    color: PebbleStyle.color.clear
    implicitWidth: _grid.implicitWidth
    implicitHeight: _grid.implicitHeight
    Accessible.role: Accessible.Grouping

    Grid {
        id: _grid

        readonly property real cellWidth: Math.max(0, (_top.width - (columns - 1) * spacing) / columns)

        columns: Math.max(1, _top.column)
        rows: _top.row
        spacing: PebbleStyle.size.gridGap

        Repeater {
            id: _options
            model: _top.model?.length ?? 0

            PbGridOption {
                required property int index
                readonly property var item: _top.model?.[index]

                width: _top.fillWidth ? _grid.cellWidth : implicitWidth
                text: String(item?.[_top.textRole] ?? "")
                value: item?.[_top.valueRole]
                type: item?.type ?? PbButton.Type.Secondary
                iconSource: item?.iconSource ?? ""
                enabled: item?.enabled ?? true
                showBeta: item?.showBeta ?? false
                showValue: item?.showValue ?? _top.showValue
                showAuto: item?.showAuto ?? (_top.autoValue === index)
                multiSelect: _top.multiSelect
                alignLeft: _top.alignLeft
                selected: _top.multiSelect ? Array.from(_top.selectedItems ?? []).includes(index) : _top.selectedItem === index
                onClicked: _private.press(index)
                Keys.onPressed: event => {
                    const target = _rules.keyTarget(event.key, index, _private.enabledFlags());
                    if (target === -1)
                        return;
                    event.accepted = true;
                    _options.itemAt(target).forceActiveFocus(Qt.TabFocusReason);
                }
            }
        }
    }

    PbGridRules {
        id: _rules
        columns: _grid.columns
    }

    QtObject {
        id: _private

        function enabledFlags(): var {
            return Array.from(_top.model, item => item?.enabled ?? true);
        }

        function press(index: int): void {
            if (_top.multiSelect)
                PbBoundProperty.write(_top, "selectedItems", _rules.toggled(_top.selectedItems, index));
            else
                PbBoundProperty.write(_top, "selectedItem", index);
            _top.activated(index);
        }
    }
}
