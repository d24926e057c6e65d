pragma ComponentBehavior: Bound
import QtQuick
import imageenhance

// The refine panel of one filter, the base of those in filterViews/. It is there as long as its row; what it shows is made
// when it is first seen and then kept, so that a column appears at once.
Item {
    id: _top

    required property RightPanelState panelState
    required property EnhancementActions actions
    required property WindowState windowState
    required property MainSettings settings
    required property RefinePlacement placement
    required property string filterName
    required property string parentCategory
    required property string title
    required property url iconSource

    property bool hideControls: false
    property bool hideSelection: !actions.offersSelection || !panelState.vocabulary.isSelectionFilter(parentCategory)
    property Component content // the filter's control

    readonly property bool open: panelState.refiningFilter === filterName
    readonly property bool nearLeftEdge: placement.nearLeftEdge
    readonly property bool locked: Boolean(_filter.params?.locked)
    readonly property CollapsibleEnhancement panel: _panel.item as CollapsibleEnhancement

    // Hidden panels don't follow what is set.
    readonly property var _filter: open && panelState.controls.currentChanges >= 0 ? panelState.controls.currentFilter(filterName) : {}
    readonly property real _wantedHeight: panel?.implicitHeight ?? 0

    function setRefineView(maskingView: bool): void {
        actions.setRefineView(maskingView);
    }

    function _tellHeight(): void {
        if (open && panel)
            placement.contentHeight = _wantedHeight;
    }

    x: placement.position.x
    y: placement.position.y
    width: placement.panelWidth
    height: placement.height
    visible: open
    onOpenChanged: {
        if (open)
            _panel.active = true;
        _tellHeight();
    }
    on_WantedHeightChanged: _tellHeight()

    Loader {
        id: _panel

        anchors.fill: parent
        active: false
        sourceComponent: CollapsibleEnhancement {
            actions: _top.actions
            placement: _top.placement
            title: _top.title
            iconSource: _top.iconSource
            open: _top.open
            hideControls: _top.hideControls
            hideSelection: _top.hideSelection
            content: _top.content
        }
    }
}
