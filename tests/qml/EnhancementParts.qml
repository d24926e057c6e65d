import QtQuick
import imageenhance

// WindowParts with filters on the image, and the column and the refine panels that show them.
WindowParts {
    id: _top

    readonly property RightPanelState panelState: panel.logic.stack
    readonly property EnhancementActions actions: panel.logic.actions
    readonly property EnhancementsListView list: items(panel, item => item instanceof EnhancementsListView)[0] as EnhancementsListView
    readonly property RefineLayer panels: items(workArea, item => item instanceof RefineLayer)[0] as RefineLayer

    function initTestCase(): void {
        settings.autopilotRecommendFilters = false;
        useCatalogue();
    }

    function openWith(filters: list<string>): void {
        settings.dragState = Qt.point(0, 0);
        panel.logic.modes.switchEditMode(EditMode.None);
        open(["/a.jpg", "/b.jpg"]);
        for (const name of filters)
            panelState.addNewFilterToHistory(name.replace(/\d+$/, ""), name);
        settle();
        tryVerify(() => list.itemAtIndex(filters.length - 1) !== null || filters.length === 0);
        wait(150); // the rows' own animations
        forget();
    }

    function row(name: string): EnhancementsDelegate {
        return list.itemAtIndex(panelState.enhancementsModel.indexOfFilter(name)) as EnhancementsDelegate;
    }

    function view(name: string): FilterView {
        const slots = Array.from(panels.children).map(child => child as RefinePanelSlot);
        return slots.find(slot => slot?.adjustedFilterName === name)?.view ?? null;
    }

    visible: true
    when: windowShown
    width: 1280
    height: 900
}
