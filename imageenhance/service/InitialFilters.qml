import QtQuick

// Gives an image its first filters once Autopilot has looked at it. Ends by setting the filter order, which asks
// for the first run.
QtObject {
    id: _top

    required property var controls // TControls
    required property bool recommendFilters // setting autopilotRecommendFilters

    // Settings change in a burst: only the filter order at its end counts.
    readonly property alias addingFilter: _private.adding

    readonly property list<string> processingOrder: ["RAW", "Exposure Adjust", "White Balance Adjust", "Denoise", "Sharpen", "Face Recovery", "Enhance", "Text Recovery"]

    function load(): void {
        const current = _top.controls.currentControls;
        const byHand = current.applyAutopilotOnceCalculated === true;
        _private.adding = true;
        if (current.initialFiltersApplied && !byHand)
            _top.controls.setFilterOrder(_top.controls.filterOrder);
        else if (_top.recommendFilters || byHand)
            _top.applyAutopilot();
        else
            _private.addRawOnly();
        _private.adding = false;
        _top.controls.markInitialFiltersApplied();
        _top.controls.resetManualAPCheck();
    }

    // All that Autopilot recommends, in place of what is there.
    function applyAutopilot(): void {
        const before = _private.adding;
        _private.adding = true;
        _top.controls.applyAutopilotToImage();
        const filters = _top.controls.filterOrder;
        _top.controls.setFilterOrder(_top.processingOrder.filter(name => filters.includes(name)));
        _private.adding = before;
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property bool adding: false

        // A RAW file is developed whatever the preferences say.
        function addRawOnly(): void {
            if (!_top.controls.isRaw) {
                _top.controls.setFilterOrder(_top.controls.filterOrder);
                return;
            }
            _top.controls.initializeFilter("RAW", "RAW");
            _top.controls.resetToAuto("RAW", "RAW");
            _top.controls.setParam("RAW", "enabled", true);
            _top.controls.setFilterOrder(["RAW"]);
        }
    }
}
