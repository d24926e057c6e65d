import QtQuick
import QtQuick.Controls.Fusion
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "Menus"
    width: 600
    height: 400

    property var chosen: []

    component Choice: Action {
        onTriggered: _top.chosen.push(text)
    }
    component Entry: PbMenuItem {
        onTriggered: _top.chosen.push(text)
    }

    PbMenuBar {
        id: _bar
        width: parent.width

        PbMenu {
            id: _file
            title: "&File"

            Choice { text: "&Open" }
            Entry { id: _hidden; text: "Hidden"; visible: false }
            Entry { id: _disabled; text: "Disabled"; enabled: false }
            PbMenuSeparator {}

            PbMenuItem {
                id: _save
                text: "Save && close"
                autoSuggested: true
                action: Choice { text: "Save && close"; shortcut: "Ctrl+S" }
            }

            PbMenu {
                id: _recent
                title: "Recent"
                pivot: -20

                Choice { text: "one.png" }
            }
        }

        PbMenu {
            id: _edit
            title: "&Edit"

            Choice { text: "Undo" }
        }
    }

    PbMenu {
        id: _long

        Repeater {
            model: 40

            Entry {
                required property int index
                text: `Item ${index}`
            }
        }
    }

    PbMnemonic { id: _mnemonic }

    function reset(): void {
        chosen = [];
        mouseMove(_top, 599, 399);
    }

    function cleanup(): void {
        for (const menu of [_file, _edit, _long]) {
            menu.close();
            tryVerify(() => !menu.visible);
        }
    }

    function show(menu: PbMenu): void {
        menu.popup(20, 40);
        tryVerify(() => menu.opened && menu.contentItem.contentHeight > 0);
        waitForPolish(menu.contentItem);
    }

    function test_heights(): void {
        show(_file);
        compare(_file.width, 200);
        compare(_file.itemAt(0).height, 44);
        compare(_hidden.height, 0);
        compare(_file.contentItem.contentHeight, 4 * 44 + 9);
    }

    function test_keys_data(): var {
        const D = Qt.Key_Down, U = Qt.Key_Up, R = Qt.Key_Return, L = Qt.Key_Right;
        return [
            { tag: "first", keys: [D, R], chosen: ["&Open"] },
            { tag: "Enter", keys: [D, Qt.Key_Enter], chosen: ["&Open"] },
            { tag: "Space", keys: [D, Qt.Key_Space], chosen: ["&Open"] },
            { tag: "hidden and disabled are passed over", keys: [D, D, R], chosen: ["Save && close"] },
            { tag: "back up", keys: [D, D, U, R], chosen: ["&Open"] },
            { tag: "into the sub-menu", keys: [D, D, D, L, R], chosen: ["one.png"] },
            { tag: "Return opens the sub-menu, too", keys: [D, D, D, R, R], chosen: ["one.png"] },
            { tag: "Escape chooses nothing", keys: [D, Qt.Key_Escape], chosen: [] },
        ];
    }

    function test_keys(row: var): void {
        show(_file);
        for (const key of row.keys) {
            keyClick(key);
            wait(0);
            if (_recent.visible)
                tryVerify(() => _recent.opened);
        }
        compare(chosen, row.chosen);
        tryVerify(() => !_file.visible);
    }

    function test_mouse(): void {
        show(_file);
        mouseClick(_disabled);
        compare(chosen, []);
        show(_file);
        mouseClick(_save);
        compare(chosen, ["Save && close"]);
    }

    function test_bar(): void {
        compare(_bar.height, 32);
        keyClick(Qt.Key_F, Qt.AltModifier);
        tryVerify(() => _file.opened);
        keyClick(Qt.Key_Right);
        tryVerify(() => _edit.opened);
        press([Qt.Key_Down, Qt.Key_Return]);
        compare(chosen, ["Undo"]);
    }

    function test_long_menu_scrolls_to_the_choice(): void {
        show(_long);
        verify(_long.height <= 400);
        press(Array(30).fill(Qt.Key_Down));
        const item = _long.itemAt(29);
        waitForPolish(_long.contentItem);
        const y = item.mapToItem(_long.contentItem, 0, 0).y;
        verify(y >= 0 && y + item.height <= _long.contentItem.height, `y ${y}`);
        keyClick(Qt.Key_Return);
        compare(chosen, ["Item 29"]);
    }

    function test_text(): void {
        for (const [text, plain] of [["&File", "File"], ["Save &as", "Save as"], ["a && b", "a & b"], ["end&", "end"],
                                     ["&&&x", "&x"]]) {
            compare(_mnemonic.plain(text), plain);
            compare(_mnemonic.plain(_mnemonic.escaped(text)), text);
        }
    }

    function test_named_for_those_who_listen(): void {
        compare(_save.Accessible.name, "Save & close");
        verify(_save.Accessible.description !== "");
    }
}
