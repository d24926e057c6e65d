import QtQml

// What a grid of options decides: what a click makes of the selection, and where the arrow keys lead.
QtObject {
    required property int columns

    function toggled(indices: var, index: int): list<int> {
        const chosen = Array.from(indices ?? []);
        return chosen.includes(index) ? chosen.filter(other => other !== index)
                                      : [...chosen, index].sort((a, b) => a - b);
    }

    // The next enabled option in the key's direction; -1 at the edge. Left and Right stay within a row.
    function keyTarget(key: int, index: int, enabledFlags: var): int {
        const step = key === Qt.Key_Left ? -1 : key === Qt.Key_Right ? 1
                   : key === Qt.Key_Up ? -columns : key === Qt.Key_Down ? columns : 0;
        if (step === 0)
            return -1;
        const row = Math.floor(index / columns);
        const inRow = key === Qt.Key_Left || key === Qt.Key_Right;
        for (let at = index + step; at >= 0 && at < enabledFlags.length; at += step) {
            if (inRow && Math.floor(at / columns) !== row)
                return -1;
            if (enabledFlags[at])
                return at;
        }
        return -1;
    }
}
