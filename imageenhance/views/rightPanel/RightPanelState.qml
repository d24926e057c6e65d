import QtQuick
import TControls
import imageenhance
import "../../utils/filterStack.mjs" as Stack

// The stack of filters on the current image and every operation on it. Keeps three orders in step: the rows of the
// column, the stack, and the filter order of the model. Knows no screen.
QtObject {
    id: _top

    required property TControls controls
    required property ImageProcessor engine
    required property EditModes modes
    required property FilterVocabulary vocabulary
    required property bool exporting
    required property var problems // what the analysis found on the current image

    readonly property alias enhancementsModel: _rows
    readonly property list<string> currentFilterStack: _private.stack
    readonly property alias currentFilter: _private.currentFilter
    readonly property alias addingFilter: _private.adding // meanwhile changes of parameters start no run
    // The filter whose refine panel is open; empty when none is. Only one is open at a time.
    readonly property alias refiningFilter: _private.refining
    readonly property bool expandedFilter: refiningFilter !== ""
    property bool canReattach: false // the floating refine panel is close enough to dock
    property bool manualHideFaces: false
    property bool processingNoticeShown: false // never reset within a session

    readonly property bool isRaw: controls.isRaw
    readonly property list<string> allFilters: controls.processingOrder

    signal hideAddPanel
    signal warnAboutDuplicateFilters

    function getAdjustedFilterName(category: string): string {
        return Stack.adjustedName(_private.stack, category);
    }

    // A second one during the first is dropped. Autopilot's filters request no run: the order is set at their end.
    function addNewFilterToHistory(category: string, filterName = category, openPanel = false, isFromAutopilot = false): void {
        if (_private.adding)
            return;
        _private.whileAdding(() => {
            if (filterName !== category)
                _top.warnAboutDuplicateFilters();
            _private.initialize(filterName, category);
            _private.stack = Stack.inserted(_private.stack, filterName);
            _private.makeCurrent(filterName);
            if (!isFromAutopilot)
                _top.controls.setFilterOrder(_private.stack);
        });
        _private.showRow(filterName, isFromAutopilot, openPanel);
        if (openPanel)
            hideAddPanel();
    }

    function duplicateFilter(index: int): void {
        const source = _private.stack[index];
        const controlsOf = _top.controls.currentFilter(source ?? "");
        if (!controlsOf.category || source === _top.controls.categories.enhance || controlsOf.category === _top.controls.categories.raw)
            return;
        const name = getAdjustedFilterName(controlsOf.category);
        addNewFilterToHistory(controlsOf.category, name, false, true);
        _private.whileAdding(() => _top.controls.setParams(name, controlsOf));
        _top.controls.setFilterOrder(_private.stack);
    }

    function removeFilter(index: int, filterName: string, removeControl = true): void {
        modes.switchEditMode(EditMode.None, false);
        if (Stack.categoryOf(filterName) === controls.categories.inpaint)
            _locks.unlockFilters(_private.stack, filterName);
        _private.stack = Stack.without(_private.stack, filterName);
        controls.setFilterOrder(_private.stack);
        if (removeControl)
            controls.removeFilterControl(filterName);
        closeOpenRefinePanel();
        _private.followStack();
        _private.currentFilter = "";
        closeRefineMode();
    }

    function clearEditsColumn(removeControl = false, keepRAW = false): void {
        closeOpenRefinePanel();
        const kept = isRaw && keepRAW ? _private.stack.filter(name => name === _top.controls.categories.raw) : [];
        const gone = _private.stack.filter(name => !kept.includes(name));
        _private.stack = kept;
        _private.followStack();
        if (!removeControl)
            return;
        for (const name of gone)
            controls.removeFilterControl(name);
        if (!exporting)
            controls.setFilterOrder(_private.stack);
    }

    // At the end of a drag, which has moved rows alone.
    function reprocessEnhancements(): void {
        const before = Array.from(_private.stack);
        const after = _rows.names();
        if (JSON.stringify(before) === JSON.stringify(after)) {
            console.info("Enhancement order did not change");
            return;
        }
        console.info("Updating enhancement order from:", before, ", to:", after);
        _private.stack = after;
        controls.setFilterOrder(after);
    }

    // A drag in the column, row by row; also by keyboard. False where it may not go.
    function moveRow(from: int, to: int): bool {
        if (from === to || from < 0 || to < 0 || from >= _rows.count || to >= _rows.count || !canMove(from) || !canMove(to))
            return false;
        _rows.move(from, to, 1);
        return true;
    }

    function canMove(index: int): bool {
        const row = _rows.get(index);
        return Stack.isMovable(row.adjustedFilterName, row.parentCategory, isLocked(row.adjustedFilterName));
    }

    function isLocked(filterName: string): bool {
        return _locks.isLocked(filterName);
    }

    // A row opens its panel.
    function setActiveFilter(filterName: string): void {
        hideAddPanel();
        closeOpenRefinePanel();
        modes.switchEditMode(EditMode.None);
        controls.setActiveCategory(filterName);
        if (!filterName.includes(controls.categories.textRecovery))
            engine.editSubjectMask(engine.inputImage, controls.subjectSettings);
        _private.refining = filterName;
        if (!_private.stack.includes(filterName))
            console.warn("Could not find active filter in history");
        if (!filterName.includes(controls.categories.inpaint))
            return;
        modes.switchEditMode(EditMode.Inpaint);
        _locks.lockFilters(_private.stack, filterName);
    }

    function closeOpenRefinePanel(): void {
        _private.refining = "";
        canReattach = false;
    }

    function closeRefineMode(): void {
        closeOpenRefinePanel();
        modes.switchEditMode(EditMode.None);
    }

    // `order` becomes stack and rows.
    function showStack(order: list<string>): void {
        if (_private.refining !== "" && !order.includes(_private.refining))
            closeRefineMode();
        _private.stack = order;
        _private.followStack();
    }

    // What happens in `work` starts no run by itself.
    function whileAdding(work: var): void {
        _private.whileAdding(work);
    }

    // A new filter with Autopilot's values for its category.
    function initializeNew(filterName: string, category: string): void {
        _private.initialize(filterName, category);
    }

    readonly property EnhancementsModel _rowsObject: EnhancementsModel {
        id: _rows
        controls: _top.controls
        vocabulary: _top.vocabulary
    }
    readonly property FilterLocks _locksObject: FilterLocks {
        id: _locks
        controls: _top.controls
    }

    // The column does not outlive its image.
    readonly property Connections _ofControls: Connections {
        target: _top.controls

        function onCurrentIndexChanged(): void {
            _top.clearEditsColumn();
            _private.currentFilter = "";
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property list<string> stack
        property string currentFilter: ""
        property string refining: ""
        property bool adding: false

        function whileAdding(work: var): void {
            adding = true;
            work();
            adding = false;
        }

        function initialize(filterName: string, category: string): void {
            _top.controls.initializeFilter(filterName, category);
            const advised = _top.controls.advisedFilter(category);
            if (advised.category !== undefined || advised.params !== undefined)
                _top.controls.setParams(filterName, advised);
            if (_top.vocabulary.isSelectionFilter(category))
                _top.controls.initializeSubject(filterName);
            _top.controls.setParam(filterName, "enabled", true);
        }

        function makeCurrent(filterName: string): void {
            currentFilter = filterName;
            _top.controls.setActiveCategory(filterName);
        }

        function followStack(): void {
            if (!_top.exporting || stack.length === 0)
                _rows.follow(stack, false, "");
        }

        function showRow(filterName: string, isFromAutopilot: bool, openPanel: bool): void {
            if (!_top.exporting)
                _rows.follow(stack, isFromAutopilot, openPanel ? filterName : "");
        }
    }
}
