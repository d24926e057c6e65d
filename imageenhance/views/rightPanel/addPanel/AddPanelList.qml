pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import PebbleUI
import imageenhance

// The add panel's entries under their sections' titles. One cursor, which the keys and the pointer share: the entry
// that has the keyboard.
Flickable {
    id: _top

    required property var rows // of the table; empty until they are to be seen
    required property AddPanelTable table
    required property AddPanelTips tips
    required property Item tipEdge // tooltips lie to its left

    readonly property alias cursor: _private.cursor // index of a row, or -1
    readonly property bool menuOpen: _private.menu?.visible ?? false

    signal chosen(var row)
    signal editPreset(string name)
    signal deletePreset(string name)
    signal menuClosed // and has given the keyboard back if nothing else took it

    // Gives an entry the keyboard.
    function take(index: int): void {
        _private.rowAt(index)?.entry.forceActiveFocus();
    }

    // True for a key that means something here.
    function key(key: int, modifiers: int): bool {
        switch (key) {
        case Qt.Key_Down:
        case Qt.Key_Tab:
            take(table.neighbour(cursor, 1));
            return true;
        case Qt.Key_Up:
        case Qt.Key_Backtab:
            take(table.neighbour(cursor, -1));
            return true;
        case Qt.Key_Home:
            take(0);
            return true;
        case Qt.Key_End:
            take(rows.length - 1);
            return true;
        }
        return _private.presetKey(key, modifiers);
    }

    // Places and sizes hold at once, and not from the next frame on.
    function layOut(): void {
        _column.forceLayout();
    }

    function closeMenu(): void {
        _private.menu?.close();
    }

    onContentYChanged: _tip.update()
    onRowsChanged: Qt.callLater(_private.keepCursor)
    contentHeight: _column.implicitHeight
    interactive: contentHeight > height
    boundsBehavior: Flickable.StopAtBounds
    clip: interactive
    ScrollBar.vertical: PbScrollBar {}

    AddPanelTip {
        id: _tip
        entry: _top.menuOpen ? null : _private.current?.entry ?? null
        panel: _top.tipEdge
        text: _private.current ? _top.tips.text(_private.current.modelData) : ""
    }

    Column {
        id: _column
        width: _top.interactive ? _top.width - PebbleStyle.size.scrollBar : _top.width

        Repeater {
            id: _rows
            model: _top.rows
            delegate: AddPanelRow {
                id: _row
                width: _column.width
                tips: _top.tips
                onFocused: active => _private.move(_row, active)
                onPointerAt: scene => _private.point(_row, scene)
                onChosen: _top.chosen(modelData)
                onMenuWanted: position => _private.openMenu(_row, position)
            }
        }
    }

    Component {
        id: _menu
        PresetMenu {
            onRename: name => _top.editPreset(name)
            onRemove: name => _top.deletePreset(name)
            onClosed: Qt.callLater(_private.afterMenu)
        }
    }

    QtObject {
        id: _private

        property int cursor: -1
        property var pointer: null // where it was last seen in the window
        property PresetMenu menu: null
        readonly property AddPanelRow current: rowAt(cursor)

        function rowAt(index: int): AddPanelRow {
            return _rows.itemAt(index) as AddPanelRow;
        }

        function move(row: AddPanelRow, active: bool): void {
            if (active) {
                reveal(row); // the tip is placed beside it
                cursor = row.index;
            } else if (cursor === row.index) {
                cursor = -1;
            }
        }

        // The entries are new: the keyboard was with one that has gone.
        function keepCursor(): void {
            const index = Math.min(cursor, _top.rows.length - 1);
            cursor = -1;
            _top.layOut();
            _top.take(index);
            if (rowAt(index)?.entry.activeFocus)
                cursor = index;
        }

        // Only the pointer's own movement counts, not that of the list under it.
        function point(row: AddPanelRow, scene: point): void {
            const moved = pointer?.x !== scene.x || pointer?.y !== scene.y;
            pointer = scene;
            if (moved && !row.entry.activeFocus)
                row.entry.forceActiveFocus();
        }

        // With the title over it.
        function reveal(row: AddPanelRow): void {
            if (row.y < _top.contentY)
                _top.contentY = row.y;
            else if (row.y + row.height > _top.contentY + _top.height)
                _top.contentY = row.y + row.height - _top.height;
        }

        function openMenu(row: AddPanelRow, position: point): void {
            if (row.preset === "")
                return;
            if (!menu)
                menu = _menu.createObject(_top) as PresetMenu;
            row.entry.forceActiveFocus();
            menu.preset = row.preset;
            menu.popup(row.entry, position);
        }

        function afterMenu(): void {
            const holder = _top.Window.activeFocusItem;
            if (_top.visible && (!holder || holder === _top.Window.contentItem))
                _top.take(_top.table.indexOf(AddPanelTable.Kind.Preset, menu.preset));
            _top.menuClosed();
        }

        function presetKey(key: int, modifiers: int): bool {
            const preset = current?.preset ?? "";
            if (preset === "")
                return false;
            if (key === Qt.Key_Menu || (key === Qt.Key_F10 && modifiers & Qt.ShiftModifier))
                openMenu(current, Qt.point(current.entry.height, current.entry.height));
            else if (key === Qt.Key_F2)
                _top.editPreset(preset);
            else if (key === Qt.Key_Delete)
                _top.deletePreset(preset);
            else
                return false;
            return true;
        }
    }
}
