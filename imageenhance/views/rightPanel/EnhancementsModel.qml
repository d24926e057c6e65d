import QtQuick

// The rows of the column, one for each filter: `adjustedFilterName`, `parentCategory`, `displayText`, `iconSource`,
// `mode` (EnhancementsModel.Mode), `openPanel` (the refine panel opens as soon as the row is there).
ListModel {
    id: _top

    enum Mode { Autopilot, Custom }

    function names(): list<string> {
        const names = [];
        for (let i = 0; i < count; ++i)
            names.push(get(i).adjustedFilterName);
        return names;
    }

    function indexOfFilter(name: string): int {
        return names().indexOf(name);
    }

    // Makes the rows those of `order` with as few changes as may be: rows that stay keep what is open in them. `rowOf`
    // makes the row of a name that has none.
    function follow(order: list<string>, rowOf: var): void {
        for (let i = count - 1; i >= 0; --i) {
            if (!order.includes(get(i).adjustedFilterName))
                remove(i);
        }
        for (let i = 0; i < order.length; ++i) {
            const at = indexOfFilter(order[i]);
            if (at < 0)
                insert(i, rowOf(order[i]));
            else if (at !== i)
                move(at, i, 1);
        }
    }
}
