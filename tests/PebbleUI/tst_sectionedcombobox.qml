import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "SectionedComboBox"
    width: 400
    height: 400
    maker: Component { PbSectionedComboBox { model: _top.entries } }
    spied: "activated"

    // Sections at both ends, two in a row, and a rule.
    readonly property list<var> entries: [
        { section: true, text: "First" },
        { text: "Alpha", value: "a" },
        { section: true, text: null },
        { section: true, text: "Again" },
        { text: "Beta", value: "b" },
        { text: "Again and again", value: "c" },
        { section: true, text: "Last" },
    ]

    function test_resting_place(): void {
        const box = make();
        compare(box.currentIndex, 1, "starts at the first row");
        for (const go of [index => box.setIndex(index), index => { box.currentIndex = index; }])
            for (const [name, index, rests] of [["a row", 5, 5], ["first section", 0, 4], ["rule", 2, 4],
                                                ["last section", 6, 4], ["past the end", 7, 4], ["none", -1, -1]]) {
                box.setIndex(4);
                go(index);
                compare(box.currentIndex, rests, name);
                compare(box.prevIndex, rests, name);
            }
    }

    // The start, where an unknown value leads, is a section here.
    function test_set_value(): void {
        const box = make();
        for (const [value, index] of [["b", 4], ["c", 5], ["unknown", 5], ["Last", 5]]) {
            box.setValue(value);
            compare(box.currentIndex, index, value);
        }
    }

    function test_keys(): void {
        const [up, down, home, end] = [Qt.Key_Up, Qt.Key_Down, Qt.Key_Home, Qt.Key_End];
        for (const row of [
            { tag: "down over two", from: 1, key: down, to: 4 },
            { tag: "up over two", from: 4, key: up, to: 1 },
            { tag: "down by one", from: 4, key: down, to: 5 },
            { tag: "down at the end", from: 5, key: down, to: 5 },
            { tag: "up at the start", from: 1, key: up, to: 1 },
            { tag: "Home", from: 5, key: home, to: 1 },
            { tag: "End", from: 1, key: end, to: 5 },
            { tag: "a letter passes the section of that name", from: 1, key: "a", to: 5 },
            { tag: "a letter goes round", from: 5, key: "a", to: 1 },
        ]) {
            for (const open of [false, true]) {
                const box = make();
                box.setIndex(row.from);
                focusByKeyboard(box);
                if (open) {
                    keyClick(Qt.Key_Return);
                    tryVerify(() => box.popup.opened);
                }
                keyClick(row.key);
                compare(open ? box.highlightedIndex : box.currentIndex, row.to, row.tag);
                if (open) {
                    keyClick(Qt.Key_Return);
                    tryVerify(() => !box.popup.visible);
                }
                compare(box.currentIndex, row.to, row.tag);
                compare(count, row.from === row.to && !open ? 0 : 1, row.tag);
                box.destroy();
            }
        }
    }

    function test_mouse_chooses_rows_only(): void {
        const box = make();
        openByMouse(box);
        for (const index of [0, 2, 3, 6])
            mouseClick(rowOf(box, index));
        compare(box.currentIndex, 1);
        verify(box.popup.visible);
        verify(rowOf(box, 2).height < rowOf(box, 3).height, "a rule is lower than a title");
        mouseClick(rowOf(box, 4));
        compare(box.currentIndex, 4);
        tryVerify(() => !box.popup.visible);
    }

    function test_new_model(): void {
        const box = make();
        box.setIndex(5);
        box.model = [{ section: true, text: "Only" }, { text: "One", value: 1 }];
        compare(box.currentIndex, 1);
        box.model = [{ section: true, text: "Nothing here" }];
        compare(box.currentIndex, -1);
        box.outline = PbSectionedComboBox.Outline.Warning;
        compare(box.background.border.color, PebbleStyle.color.warningYellow);
    }
}
