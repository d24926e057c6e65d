import QtQuick
import imageenhance
import "../../../utils/refinePlacement.mjs" as Placement

// Where the open refine panel is: docked beside the column, or floating at the point that the settings keep, which is one
// for all panels, in the coordinates of the screen. Positions are those of the panel's top left corner in `area`. No screen.
QtObject {
    id: _top

    required property Item area
    required property MainSettings settings
    required property real columnWidth
    required property bool open
    property real contentHeight: 0 // what the open panel would like to have

    readonly property real panelWidth: 252
    readonly property bool docked: !_private.floating
    readonly property bool dragging: _private.dragging
    readonly property point position: docked ? Qt.point(_private.attached.x, _private.attached.y) : _private.position
    readonly property real height: docked ? area.height : Math.min(contentHeight, area.height)
    readonly property bool canReattach: open && !docked && Placement.canReattach(position.x, area.width, settings.rightPanelCollapsed)
    readonly property bool nearLeftEdge: Placement.isNearLeftEdge(position.x, _private.bounds)

    function beginDrag(): void {
        _private.draggedFrom = position;
        _private.dragging = true;
        _private.floatAt(_private.draggedFrom);
    }

    // By so much since the beginning.
    function dragBy(x: real, y: real): void {
        const from = _private.draggedFrom;
        _private.floatAt(Qt.point(from.x + x, from.y + y));
    }

    function endDrag(): void {
        if (!_private.dragging)
            return;
        _private.dragging = false;
        if (canReattach)
            dock();
        else
            _private.keep();
    }

    function dock(): void {
        _private.floating = false;
        _private.keep();
    }

    function undock(): void {
        _private.floating = true; // its bounds are those of its own height
        const to = Placement.undocked(_private.bounds);
        _private.floatAt(Qt.point(to.x, to.y));
        _private.keep();
    }

    // The panel goes with its window.
    function windowMoved(): void {
        if (open && !docked)
            _private.keep();
    }

    onOpenChanged: {
        if (open)
            _private.restore();
        else
            _private.dragging = false;
    }
    onContentHeightChanged: Qt.callLater(_private.stayInside)
    onColumnWidthChanged: Qt.callLater(_private.stayInside)

    readonly property QtObject _private: QtObject {
        id: _private

        property bool floating: false
        property bool dragging: false
        property point position
        property point draggedFrom

        readonly property var attached: Placement.attachedRect(_top.area, _top.columnWidth, _top.panelWidth)
        readonly property var bounds: Placement.bounds(_top.area, {
            "width": _top.panelWidth,
            "height": _top.height
        })

        function floatAt(to: point): void {
            floating = true;
            const inside = Placement.clamped(to, bounds);
            position = Qt.point(inside.x, inside.y);
        }

        function keep(): void {
            _top.settings.dragState = floating ? _top.area.mapToGlobal(position) : Qt.point(0, 0);
        }

        // A place that is outside of the window now is given up.
        function restore(): void {
            const stored = _top.settings.dragState;
            floating = !Placement.isDocked(stored);
            if (!floating)
                return;
            const at = _top.area.mapFromGlobal(stored);
            if (Placement.isInside({ "x": Math.round(at.x), "y": Math.round(at.y) }, bounds))
                floatAt(at);
            else
                _top.dock();
        }

        function stayInside(): void {
            if (!_top.open || !floating || dragging)
                return;
            if (_top.canReattach) {
                _top.dock();
                return;
            }
            floatAt(position);
            keep();
        }
    }
}
