import QtQuick
import QtTest
import MouseListener
import imageenhance

// WindowParts with the column of filters in front, joined as the window joins it: the list at the right edge and the layer
// of refine panels over everything.
WindowParts {
    id: _top

    readonly property alias panelState: _panelState
    readonly property alias list: _list
    readonly property alias layer: _layer
    readonly property alias actions: _actions
    readonly property alias modes: _modes
    property var problems: ({})
    property bool collapsed: false

    function initTestCase(): void {
        _mouse.listenTo(_list.Window.window);
    }

    function openWith(filters: list<string>): void {
        settings.dragState = Qt.point(0, 0);
        collapsed = settings.rightPanelCollapsed = false;
        _modes.switchEditMode(EditMode.None);
        open(["/a.jpg", "/b.jpg"]);
        for (const name of filters)
            _panelState.addNewFilterToHistory(name.replace(/\d+$/, ""), name);
        settle();
        tryVerify(() => _list.itemAtIndex(filters.length - 1) !== null || filters.length === 0);
        wait(150); // the rows' own animations
        forget();
    }

    function row(name: string): EnhancementsDelegate {
        return _list.itemAtIndex(_panelState.enhancementsModel.indexOfFilter(name)) as EnhancementsDelegate;
    }

    function view(name: string): FilterView {
        for (const child of _layer.children) {
            const slot = child as RefinePanelSlot;
            if (slot?.adjustedFilterName === name)
                return slot.view;
        }
        return null;
    }

    visible: true
    when: windowShown
    width: 1280
    height: 700

    EditModes {
        id: _modes
        faceCount: 0
    }
    FilterVocabulary {
        id: _vocabulary
        controls: _top.controls
    }
    RightPanelState {
        id: _panelState
        controls: _top.controls
        engine: _top.engine
        modes: _modes
        vocabulary: _vocabulary
        exporting: false
        problems: _top.problems
    }
    EnhancementActions {
        id: _actions
        panelState: _panelState
    }
    MouseListener {
        id: _mouse
    }
    EnhancementsListView {
        id: _list
        z: 1
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom; topMargin: 200 }
        width: _top.collapsed ? 48 : 272
        panelState: _panelState
        actions: _actions
        mousePressed: _mouse.isMousePressed
        collapsed: _top.collapsed
    }
    RefineLayer {
        id: _layer
        z: 2
        anchors { fill: parent; topMargin: 80 }
        panelState: _panelState
        actions: _actions
        windowState: _top.windowState
        settings: _top.settings
        columnWidth: _list.width
    }
}
