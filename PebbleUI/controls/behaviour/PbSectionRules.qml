import QtQml
import PebbleUI

// Where a choice among rows and section entries may come to rest: never on a section entry.
QtObject {
    id: _top

    required property PbRowReader rows
    required property string sectionRole

    // The last index that was not a section's; -1 before there is one.
    property int prevIndex: -1

    function isSection(index: int): bool {
        const row = rows.row(index);
        return row !== null && typeof row === "object" && row[sectionRole] === true;
    }

    function isReal(index: int): bool {
        return rows.row(index) !== undefined && !isSection(index);
    }

    // The first row that can be chosen from `index` on, in steps of 1 or -1; -1 when there is none.
    function seek(index: int, step: int): int {
        for (let at = index; rows.row(at) !== undefined; at += step) {
            if (!isSection(at))
                return at;
        }
        return -1;
    }

    // Where a move to `index` ends. Remembers it. No row (-1) is a place to rest, too.
    function settle(index: int): int {
        if (index !== -1 && !isReal(index))
            return isReal(prevIndex) ? prevIndex : seek(0, 1);
        prevIndex = index;
        return index;
    }

    // Where an arrow key, Home or End leads from `index`; -1 when it leads nowhere.
    function keyTarget(key: int, index: int): int {
        switch (key) {
        case Qt.Key_Up:
            return seek(index - 1, -1);
        case Qt.Key_Down:
            return seek(index + 1, 1);
        case Qt.Key_Home:
            return seek(0, 1);
        case Qt.Key_End:
            return seek(rows.count - 1, -1);
        default:
            return -1;
        }
    }

    // The next row that begins with `letter`, past `index` and round again; -1 when none does.
    function search(letter: string, index: int, textRole: string): int {
        for (let step = 1; step <= rows.count; ++step) {
            const at = (index + step) % rows.count;
            if (!isSection(at) && rows.text(at, textRole).toLowerCase().startsWith(letter.toLowerCase()))
                return at;
        }
        return -1;
    }
}
