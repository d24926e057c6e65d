pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import imageenhance

// The refine panels, over the preview and beside the column: fills the area below the title bar and takes no clicks where
// there is no panel. Each filter of the column has its panel here from its beginning to its end; one is seen at a time.
Item {
    id: _top

    required property RightPanelState panelState
    required property EnhancementActions actions
    required property WindowState windowState
    required property MainSettings settings
    required property real columnWidth // of the right panel

    readonly property alias placement: _placement
    // What the preview gives up at its right side.
    readonly property real sidebarOffset: _placement.open && _placement.docked ? _placement.panelWidth : 0

    function _resized(): void {
        if (panelState.expandedFilter)
            panelState.closeRefineMode();
    }

    enabled: !windowState.autopilotRunning
    onWidthChanged: _resized()
    onHeightChanged: _resized()

    Repeater {
        model: _top.panelState.enhancementsModel

        RefinePanelSlot {
            panelState: _top.panelState
            actions: _top.actions
            windowState: _top.windowState
            settings: _top.settings
            placement: _placement
        }
    }

    RefinePlacement {
        id: _placement
        area: _top
        settings: _top.settings
        columnWidth: _top.columnWidth
        open: _top.panelState.expandedFilter
        onCanReattachChanged: _top.panelState.canReattach = canReattach
    }
    PanelMenu {
        id: _menu
        parent: _top
        actions: _top.actions
        placement: _placement
    }
    EditedFilterReport {
        panelState: _top.panelState
        onTrack: (name, properties) => _top.windowState.helpers.eventTracker.track(name, properties)
    }
    Connections {
        target: _top.actions

        function onPanelMenuWanted(below: Item): void {
            _menu.popup(below, 0, below.height);
        }
    }
    Connections {
        target: _top.Window.window

        function onXChanged(): void {
            Qt.callLater(_placement.windowMoved);
        }
        function onYChanged(): void {
            Qt.callLater(_placement.windowMoved);
        }
    }
}
