pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import PebbleUI
import imageenhance

// The filters on the current image. Tab reaches the list once: the arrow keys go from row to row, with Alt they move the row,
// Return opens its panel, Delete removes it, the menu key opens its menu.
ListView {
    id: _top

    required property RightPanelState panelState
    required property EnhancementActions actions
    required property bool mousePressed // a mouse button is down anywhere in the window
    required property bool collapsed

    readonly property int rowHeight: 48
    readonly property int pitch: rowHeight + PebbleStyle.size.border

    readonly property EnhancementsDelegate _row: currentItem as EnhancementsDelegate

    function _openMenu(row: EnhancementsDelegate, atPointer: bool): void {
        if (!row)
            return;
        _menu.about(row.adjustedFilterName, row.parentCategory, row.displayText);
        // Below the list and not the row, which the menu may remove.
        if (atPointer)
            _menu.popup(_top);
        else
            _menu.popup(_top, row.mapToItem(_top, PebbleStyle.size.spacingLarge, rowHeight));
    }

    function _moveRow(step: int): void {
        if (panelState.moveRow(currentIndex, currentIndex + step))
            panelState.reprocessEnhancements();
    }

    function _remove(row: EnhancementsDelegate): void {
        if (row && !row.locked && row.parentCategory !== panelState.controls.categories.raw)
            actions.remove(row.adjustedFilterName);
    }

    model: panelState.enhancementsModel
    interactive: !mousePressed && contentHeight > height
    keyNavigationEnabled: true
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    cacheBuffer: 64 * pitch // a column is short: all its rows are there
    activeFocusOnTab: count > 0
    highlightFollowsCurrentItem: true
    highlightMoveDuration: 0
    ScrollBar.vertical: PbScrollBar {}
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Enhancements")
    Keys.onPressed: event => event.accepted = _keys.pressed(event.key, event.modifiers)
    Keys.onTabPressed: event => {
        event.accepted = panelState.expandedFilter;
        if (event.accepted)
            actions.panelFocusWanted();
    }

    delegate: EnhancementsDelegate {
        required property int index

        width: ListView.view.width
        panelState: _top.panelState
        actions: _top.actions
        drag: _drag
        filter: _top.panelState.controls.currentChanges >= 0 ? _top.panelState.controls.currentFilter(adjustedFilterName) : {}
        collapsed: _top.collapsed
        starting: _spinner.running
        focused: ListView.isCurrentItem && _top.activeFocus && !_drag.active
        onMenuRequested: _top._openMenu(this, true)
    }

    add: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 100 }
    }
    remove: Transition {
        NumberAnimation { property: "opacity"; to: 0; duration: 100 }
    }
    displaced: Transition {
        NumberAnimation { property: "y"; duration: 100 }
        NumberAnimation { property: "opacity"; to: 1; duration: 100 }
    }

    RowMenu {
        id: _menu
        actions: _top.actions
        onClosed: _top.forceActiveFocus(Qt.PopupFocusReason) // the keys go on where they were
    }
    RowDrag {
        id: _drag

        property Item before: null // what had the keyboard

        panelState: _top.panelState
        rowHeight: _top.rowHeight
        pitch: _top.pitch
        visibleTop: _top.contentY
        visibleHeight: _top.height
        onActiveChanged: {
            if (active) {
                before = _top.Window.activeFocusItem;
                _top.forceActiveFocus(Qt.MouseFocusReason);
            } else if (_top.activeFocus && before) {
                before.forceActiveFocus(Qt.OtherFocusReason);
            }
        }
    }
    RowSpinner {
        id: _spinner
        engine: _top.panelState.engine
    }
    Connections {
        target: _top.actions

        function onListFocusWanted(): void {
            _top.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    QtObject {
        id: _keys

        function pressed(key: int, modifiers: int): bool {
            if (_drag.active) {
                if (key === Qt.Key_Escape)
                    _drag.cancel();
                return true;
            }
            const row = _top._row;
            switch (key) {
            case Qt.Key_Up:
            case Qt.Key_Down:
                if (!(modifiers & Qt.AltModifier))
                    return false;
                _top._moveRow(key === Qt.Key_Up ? -1 : 1);
                return true;
            case Qt.Key_Return:
            case Qt.Key_Enter:
            case Qt.Key_Space:
                if (row && !row.locked)
                    _top.actions.togglePanel(row.adjustedFilterName);
                return true;
            case Qt.Key_Delete:
                _top._remove(row);
                return true;
            case Qt.Key_Menu:
                _top._openMenu(row, false);
                return true;
            case Qt.Key_F10:
                if (modifiers & Qt.ShiftModifier)
                    _top._openMenu(row, false);
                return Boolean(modifiers & Qt.ShiftModifier);
            }
            return false;
        }
    }
}
