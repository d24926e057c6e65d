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

    PbMenuBar {
        id: _bar
        width: parent.width

        PbMenu {
            id: _file
            title: "&File"

            Action {
                text: "&Open"
                onTriggered: _top.chosen.push("open")
            }

            PbMenuItem {
                id: _hidden
                text: "Hidden"
                visible: false
                onTriggered: _top.chosen.push("hidden")
            }

            PbMenuItem {
                id: _disabled
                text: "Disabled"
                enabled: false
                onTriggered: _top.chosen.push("disabled")
            }

            PbMenuSeparator {}

            PbMenuItem {
                id: _save
                text: "Save && close"
                autoSuggested: true
                action: Action {
                    text: "Save && close"
                    shortcut: "Ctrl+S"
                    onTriggered: _top.chosen.push("save")
                }
            }

            PbMenu {
                id: _recent
                title: "Recent"
                pivot: -20

                Action {
                    text: "one.png"
                    onTriggered: _top.chosen.push("one")
                }
            }
        }

        PbMenu {
            id: _edit
            title: "&Edit"

            Action {
                text: "Undo"
                onTriggered: _top.chosen.push("undo")
            }
        }
    }

    PbMenu {
        id: _long

        Repeater {
            model: 40

            PbMenuItem {
                required property int index
                text: `Item ${index}`
                onTriggered: _top.chosen.push(index)
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
            { tag: "first", keys: [D, R], chosen: ["open"] },
            { tag: "Enter", keys: [D, Qt.Key_Enter], chosen: ["open"] },
            { tag: "Space", keys: [D, Qt.Key_Space], chosen: ["open"] },
            { tag: "hidden and disabled are passed over", keys: [D, D, R], chosen: ["save"] },
            { tag: "back up", keys: [D, D, U, R], chosen: ["open"] },
            { tag: "into the sub-menu", keys: [D, D, D, L, R], chosen: ["one"] },
            { tag: "Return opens the sub-menu, too", keys: [D, D, D, R, R], chosen: ["one"] },
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
        compare(chosen, ["save"]);
    }

    function test_bar(): void {
        compare(_bar.height, 32);
        keyClick(Qt.Key_F, Qt.AltModifier);
        tryVerify(() => _file.opened);
        keyClick(Qt.Key_Right);
        tryVerify(() => _edit.opened);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        compare(chosen, ["undo"]);
    }

    function test_long_menu_scrolls_to_the_choice(): void {
        show(_long);
        verify(_long.height <= 400);
        for (let i = 0; i < 30; ++i)
            keyClick(Qt.Key_Down);
        const item = _long.itemAt(29);
        waitForPolish(_long.contentItem);
        const y = item.mapToItem(_long.contentItem, 0, 0).y;
        verify(y >= 0 && y + item.height <= _long.contentItem.height, `y ${y}`);
        keyClick(Qt.Key_Return);
        compare(chosen, [29]);
    }

    function test_text_data(): var {
        return [
            { tag: "mark", text: "&File", plain: "File" },
            { tag: "mark within", text: "Save &as", plain: "Save as" },
            { tag: "two are one", text: "a && b", plain: "a & b" },
            { tag: "at the end", text: "end&", plain: "end" },
            { tag: "three", text: "&&&x", plain: "&x" },
        ];
    }

    function test_text(row: var): void {
        compare(_mnemonic.plain(row.text), row.plain);
        compare(_mnemonic.plain(_mnemonic.escaped(row.text)), row.text);
    }

    function test_named_for_those_who_listen(): void {
        compare(_save.Accessible.name, "Save & close");
        verify(_save.Accessible.description !== "");
    }
}
