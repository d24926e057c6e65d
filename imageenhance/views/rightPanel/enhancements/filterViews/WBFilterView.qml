pragma ComponentBehavior: Bound
import imageenhance

FilterView {
    id: _top

    content: WBFilterControl {
        controls: _top.panelState.controls
        filterName: _top.filterName
        parentCategory: _top.parentCategory
        locked: _top.locked
        nearLeftEdge: _top.nearLeftEdge
    }
}
