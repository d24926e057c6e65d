import QtQuick
import imageenhance
import "../../utils/filterStack.mjs" as Stack

// How the column comes to the filters of its image: from the record, from Autopilot, from a preset.
QtObject {
    id: _top

    required property RightPanelState panelState

    signal autopilotNeedsConfirmation

    // False where Autopilot would replace filters and the user has to be asked first.
    function loadNewFiltersIntoEdits(manuallyRunAP = false): bool {
        const controls = panelState.controls;
        if (controls.currentControls.initialFiltersApplied && !manuallyRunAP) {
            load();
        } else if (panelState.engine.recommendFilters || manuallyRunAP) {
            if (panelState.currentFilterStack.length > 0) {
                autopilotNeedsConfirmation();
                return false;
            }
            controls.applyRecommendedFilters();
            load();
        } else if (panelState.isRaw) {
            panelState.addNewFilterToHistory(controls.categories.raw);
        }
        controls.markInitialFiltersApplied();
        return true;
    }

    function load(): void {
        const controls = panelState.controls;
        if (panelState.currentFilterStack.length === 0)
            panelState.showStack(_private.shown(Stack.normalised(controls.filterOrder)));
        controls.setFilterOrder(panelState.currentFilterStack);
    }

    // The record's order was set elsewhere: rows that stay keep what is open in them.
    function follow(): void {
        panelState.showStack(Stack.normalised(panelState.controls.filterOrder));
    }

    readonly property QtObject _private: QtObject {
        id: _private

        // Settings copied from another image may name what this one can't have, or lack what it must have: the decision
        // needs the image, and so is made here.
        function shown(order: list<string>): list<string> {
            const controls = _top.panelState.controls;
            const face = controls.categories.faceRecovery;
            const raw = controls.categories.raw;
            let rest = Array.from(order);
            if (rest.includes(face) && !_top.panelState.problems.faceCount) {
                controls.removeFilterControl(face);
                rest = Stack.without(rest, face);
            }
            if (order.length > 0 && addsRaw(controls.currentControls, raw)) {
                _top.panelState.whileAdding(() => _top.panelState.initializeNew(raw, raw));
                rest = Stack.inserted(rest, raw);
            }
            return rest;
        }

        function addsRaw(current: var, raw: string): bool {
            const advised = current.autoPilotSettings?.[raw];
            const stored = current[raw];
            const linear = "Linear RAW";
            const missing = _top.panelState.isRaw && !stored;
            const shouldBeLinear = advised?.model === linear && stored?.model !== linear;
            return Boolean(advised?.enabled) && (missing || shouldBeLinear);
        }
    }
}
