import QtQuick
import imageenhance

// What rows, refine panels and their menus do to a filter, and what they ask of one another. No screen.
QtObject {
    id: _top

    required property RightPanelState panelState
    property real fileSize: 0 // of a save with the present settings, in bytes; 0 when unknown
    property string fileSizeError: ""

    // Whether a part of the picture can be selected for a filter: there is no engine that finds one yet.
    readonly property bool offersSelection: false
    readonly property alias maskingView: _private.maskingView // the open panel shows its selection tab

    signal estimateFileSize
    signal hoverPreview(bool showMask, int editMode)
    signal panelFocusWanted
    signal listFocusWanted
    signal panelMenuWanted(Item below)

    function isEnabled(filterName: string): bool {
        return Boolean(panelState.controls.currentFilter(filterName).enabled);
    }

    // A filter that goes out of use takes its panel with it.
    function toggleEnabled(filterName: string): void {
        const enabled = isEnabled(filterName);
        if (enabled && panelState.refiningFilter === filterName)
            closePanel();
        panelState.controls.setParam(filterName, "enabled", !enabled);
    }

    function togglePanel(filterName: string): void {
        if (panelState.refiningFilter === filterName)
            closePanel();
        else
            showRefinePanel(filterName);
    }

    function showRefinePanel(filterName: string, maskingView = false): void {
        if (!isEnabled(filterName))
            panelState.controls.setParam(filterName, "enabled", true);
        panelState.setActiveFilter(filterName);
        setRefineView(maskingView);
    }

    function setRefineView(maskingView: bool): void {
        _private.maskingView = maskingView && offersSelection;
    }

    function closePanel(): void {
        panelState.closeRefineMode();
    }

    function duplicate(filterName: string): void {
        panelState.duplicateFilter(panelState.currentFilterStack.indexOf(filterName));
    }

    function remove(filterName: string): void {
        panelState.removeFilter(panelState.currentFilterStack.indexOf(filterName), filterName, true);
    }

    function removeAll(): void {
        panelState.clearEditsColumn(true, true);
    }

    function resetToAutopilotSettings(filterName: string, category: string): void {
        const controls = panelState.controls;
        controls.setParams(filterName, controls.advisedFilter(category));
        if (panelState.vocabulary.isSelectionFilter(category))
            controls.initializeSubject(filterName);
    }

    readonly property QtObject _private: QtObject {
        id: _private
        property bool maskingView: false
    }
}
