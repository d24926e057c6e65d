pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI

// A choice of any number of rows. The list stays open while rows are switched; Space, Return and Enter
// switch the highlighted one. `activated` reports each switch by the user.
PbComboBox {
    id: _top

    // The chosen values, in the order in which they were chosen.
    property var currentItems: []

    displayText: {
        const texts = [];
        for (let index = 0; index < rows.count; ++index) {
            if (_private.isChosen(index))
                texts.push(rows.text(index, textRole));
        }
        return texts.length > 0 ? texts.join(", ") : qsTr("None selected");
    }

    Keys.onPressed: event => {
        const open = popup.visible;
        if (open && event.key === Qt.Key_Space && !event.isAutoRepeat) {
            _private.toggle(highlightedIndex);
            return;
        }
        if (event.accepted)
            return;
        const moves = [Qt.Key_Up, Qt.Key_Down, Qt.Key_Home, Qt.Key_End].includes(event.key);
        if (open && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            event.accepted = true;
            _private.toggle(highlightedIndex);
        } else if (!open && moves) {
            event.accepted = true;
            popup.open();
        }
    }

    Keys.onReleased: event => {
        if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            event.accepted = true;
    }

    // A row that is itself the delegate would close the list when pressed.
    delegate: Item {
        id: _row

        required property int index

        width: ListView.view?.width ?? 0
        implicitHeight: _content.implicitHeight

        PbComboRow {
            id: _content
            anchors.fill: parent
            text: _top.rows.text(_row.index, _top.textRole)
            secondary: _top.rows.isPlain ? "" : _top.rows.text(_row.index, _top.secondaryRole)
            withCheck: true
            current: _private.isChosen(_row.index)
            highlighted: _top.highlightedIndex === _row.index
            onClicked: _private.toggle(_row.index)
        }
    }

    QtObject {
        id: _private

        function isChosen(index: int): bool {
            return Array.from(_top.currentItems ?? []).includes(_top.rows.read(index, _top.valueRole));
        }

        function toggle(index: int): void {
            const value = _top.rows.read(index, _top.valueRole);
            if (value === undefined)
                return;
            const others = Array.from(_top.currentItems ?? []).filter(other => other !== value);
            PbBoundProperty.write(_top, "currentItems", isChosen(index) ? others : [...others, value]);
            _top.activated(index);
        }
    }
}
