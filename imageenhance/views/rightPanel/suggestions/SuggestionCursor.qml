import QtQuick

// Where the keyboard is in the card. Tab reaches one of its stops, where it was last; the arrow keys go over all of them.
QtObject {
    id: _top

    required property list<Item> before // from the top
    required property ListView rows
    required property list<Item> after

    // The one that Tab reaches. Null while nothing can be reached.
    readonly property Item stop: _private.at?.visible ? _private.at : rows.currentItem ?? after.find(item => item.visible) ?? before[0] ?? null

    // What has the focus stays reachable until it has lost it.
    function focusPolicy(item: Item): int {
        return item === stop || item.activeFocus ? Qt.TabFocus : Qt.NoFocus;
    }

    function stops(): list<Item> {
        const inRows = Array.from({ length: rows.count }, (_, i) => _top.rows.itemAtIndex(i)).filter(item => item !== null);
        return [...before, ...inRows, ...after].filter(item => item.visible);
    }

    function go(item: Item): void {
        _private.at = item;
        item?.forceActiveFocus(Qt.TabFocusReason);
    }

    // Whether there was one to go to.
    function step(by: int): bool {
        const all = stops();
        const next = all.findIndex(item => item.activeFocus) + by;
        if (next < 0 || next >= all.length)
            return false;
        go(all[next]);
        return true;
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property Item at: null
    }
}
