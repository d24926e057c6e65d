import QtQuick
import TControls
import imageenhance
import "../../utils/filterStack.mjs" as Stack

// The rows of the column, one for each filter: `adjustedFilterName`, `parentCategory`, `displayText`, `iconSource`,
// `mode` (EnhancementsModel.Mode), `openPanel` (the refine panel opens as soon as the row is there).
ListModel {
    id: _top

    enum Mode { Autopilot, Custom }

    required property TControls controls
    required property FilterVocabulary vocabulary

    function names(): list<string> {
        const names = [];
        for (let i = 0; i < count; ++i)
            names.push(get(i).adjustedFilterName);
        return names;
    }

    function indexOfFilter(name: string): int {
        return names().indexOf(name);
    }

    // Makes the rows those of `order` with as few changes as may be: rows that stay keep what is open in them. A new row
    // is Autopilot's where it was added so or holds what it recommends; that of `opened` opens its panel.
    function follow(order: list<string>, isFromAutopilot: bool, opened: string): void {
        const current = controls.currentControls;
        for (let i = count - 1; i >= 0; --i) {
            if (!order.includes(get(i).adjustedFilterName))
                remove(i);
        }
        for (let i = 0; i < order.length; ++i) {
            const at = indexOfFilter(order[i]);
            if (at < 0)
                insert(i, _row(current, order[i], isFromAutopilot, order[i] === opened));
            else if (at !== i)
                move(at, i, 1);
        }
    }

    function _row(current: var, name: string, isFromAutopilot: bool, openPanel: bool): var {
        const category = current[name]?.category || Stack.categoryOf(name);
        const advised = name === category && current.autoPilotSettings?.[category]?.enabled;
        return {
            "adjustedFilterName": name,
            "parentCategory": category,
            "displayText": vocabulary.label(category),
            "iconSource": vocabulary.icon(category).toString(),
            "mode": isFromAutopilot || advised ? EnhancementsModel.Mode.Autopilot : EnhancementsModel.Mode.Custom,
            openPanel
        };
    }
}
