import QtQuick
import TControls
import "../../utils/filterStack.mjs" as Stack

// Filters in front of an open Inpaint are locked: what it fills in fits the picture as they left it.
QtObject {
    id: _top

    required property TControls controls

    function isLocked(filterName: string): bool {
        return Boolean(controls.currentFilter(filterName).params?.locked);
    }

    function lockFilters(stack: list<string>, inpaint: string): void {
        for (const name of Stack.toLock(stack, inpaint, isLocked))
            controls.setParam(name, "locked", true);
    }

    function unlockFilters(stack: list<string>, inpaint: string): void {
        for (const name of Stack.toUnlock(stack, inpaint))
            controls.setParam(name, "locked", false);
    }
}
