import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "GridSelect"
    spied: "activated"

    property int chosen: 0

    // 3 columns: a full row, a gap in the middle of the second, and one option in the third.
    readonly property list<var> entries: [
        { text: "One", value: 1 },
        { text: "Two", value: 2, showBeta: true, iconSource: PebbleStyle.icon.crop },
        { text: "Three", value: 3, showValue: true },
        { text: "Four", value: 4, enabled: true },
        { text: "Five", value: 5, enabled: false },
        { text: "Six", value: 6 },
        { text: "Seven with a name much too long for it", value: 7, showAuto: true },
    ]

    maker: Component {
        PbGridSelect {
            width: 300
            column: 3
            model: _top.entries
            selectedItem: _top.chosen
            onSelectedItemChanged: _top.chosen = selectedItem
        }
    }

    function reset(): void {
        chosen = 0;
    }

    function optionsOf(grid: PbGridSelect): var {
        return grid.children[0].children.filter(child => child instanceof PbGridOption);
    }

    function test_layout(): void {
        const options = optionsOf(make());
        compare(options.length, 7);
        fuzzyCompare(options[1].x - options[0].x - options[0].width, 2, 0.01);
        compare(options[3].y - options[0].y - options[0].height, 2);
        fuzzyCompare(options[2].x + options[2].width, 300, 0.01);
        const shown = name => options.map(option => findChild(option, name).visible);
        compare(shown("beta"), [false, true, false, false, false, false, false]);
        compare(shown("value"), [false, false, true, false, false, false, false]);
        compare(shown("autoDot"), [false, false, false, false, false, false, true]);
        compare(findChild(options[2], "value").text, "3");
        verify(options[6].contentItem.children[0].width <= options[6].width);
    }

    function test_click(): void {
        const grid = make();
        const options = optionsOf(grid);
        mouseClick(options[2]);
        compare(chosen, 2);
        mouseClick(options[4]);
        compare(chosen, 2, "disabled");
        compare(count, 1);
        chosen = 5;
        compare(grid.selectedItem, 5, "still bound");
        compare(options.findIndex(option => option.selected), 5);
        chosen = -1;
        verify(!options.some(option => option.selected));
    }

    function test_several(): void {
        const grid = make({ multiSelect: true, selectedItems: [4] });
        const options = optionsOf(grid);
        for (const index of [3, 1, 4])
            mouseClick(options[index]);
        compare(grid.selectedItems, [1, 3, 4]);
        mouseClick(options[3]);
        compare(grid.selectedItems, [1, 4]);
        compare(grid.selectedItem, 0);
    }

    function test_arrows(): void {
        const options = optionsOf(make());
        for (const [name, from, key, to] of [
            ["right", 0, Qt.Key_Right, 1],
            ["right at the edge", 2, Qt.Key_Right, 2],
            ["over a disabled one", 3, Qt.Key_Right, 5],
            ["back over it", 5, Qt.Key_Left, 3],
            ["down", 0, Qt.Key_Down, 3],
            ["down to nothing", 1, Qt.Key_Down, 1],
            ["up", 6, Qt.Key_Up, 3],
            ["up at the edge", 2, Qt.Key_Up, 2],
        ]) {
            chosen = 0;
            focusByKeyboard(options[from]);
            keyClick(key);
            verify(options[to].visualFocus, name);
            compare(chosen, 0, "arrows move the keyboard only");
            keyClick(from % 2 ? Qt.Key_Space : Qt.Key_Return);
            compare(chosen, to, name);
        }
    }

    function test_reset(): void {
        const grid = make();
        const dot = findChild(optionsOf(grid)[5], "autoDot");
        for (const [auto, target] of [[5, 5], [0, 0], [-1, 0]]) {
            grid.autoValue = auto;
            chosen = 3;
            grid.reset();
            compare(chosen, target);
            compare(dot.visible, auto === 5);
        }
    }
}
