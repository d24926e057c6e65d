import QtQuick
import imageenhance
import "../../../utils/enhancementRow.mjs" as Rules

// A drag of one row: the rows move along with it, and the filters follow on the drop. Positions are those of a row's top in
// the list's content.
QtObject {
    id: _top

    required property RightPanelState panelState
    required property real rowHeight
    required property real pitch // from one row to the next
    required property real visibleTop
    required property real visibleHeight

    readonly property alias filterName: _private.filterName // empty while there is no drag
    readonly property alias y: _private.y
    readonly property bool active: filterName !== ""

    function begin(filterName: string): bool {
        const index = panelState.enhancementsModel.indexOfFilter(filterName);
        if (index < 0 || !panelState.canMove(index))
            return false;
        panelState.closeOpenRefinePanel();
        _private.y = index * pitch;
        _private.filterName = filterName;
        return true;
    }

    function moveTo(y: real): void {
        const rows = panelState.enhancementsModel;
        const last = Math.min(visibleTop + visibleHeight - rowHeight, (rows.count - 1) * pitch);
        _private.y = Math.max(visibleTop, Math.min(last, y));
        panelState.moveRow(rows.indexOfFilter(filterName), Rules.rowAt(_private.y, rowHeight, pitch, rows.count));
    }

    function drop(): void {
        _private.filterName = "";
        panelState.reprocessEnhancements();
    }

    function cancel(): void {
        _private.filterName = "";
        panelState.showStack(panelState.currentFilterStack);
    }

    // The dragged row itself may go: its image was closed, say.
    readonly property Connections _ofRows: Connections {
        target: _top.panelState.enhancementsModel
        enabled: _top.active

        function onCountChanged(): void {
            if (_top.panelState.enhancementsModel.indexOfFilter(_private.filterName) < 0)
                _private.filterName = "";
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private
        property string filterName: ""
        property real y: 0
    }
}
