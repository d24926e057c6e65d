import QtQuick
import QtTest
import PebbleUI

// Choices of one and of several rows.
PebbleCase {
    id: _top
    name: "ComboBox"
    maker: Component { PbComboBox { model: _top.entries } }
    spied: "activated"

    property list<string> parts: []

    readonly property list<var> entries: [
        { text: "Alpha", value: "a", secondary: "10 %" },
        { text: "Beta", value: "b" },
        { text: "A very long name of a thing that no list of this width could ever show", value: "c", secondary: "long" },
    ]

    Component {
        id: _multiMaker
        PbMultiComboBox {
            model: _top.entries
            currentItems: _top.parts
            onCurrentItemsChanged: _top.parts = currentItems
        }
    }

    function reset(): void {
        parts = [];
    }

    function test_set_value_data(): var {
        return [
            { tag: "known", value: "c", index: 2 },
            { tag: "unknown", value: "nothing", index: 0 },
            { tag: "undefined", value: undefined, index: 0 },
            { tag: "other type", value: 2, index: 0 },
            { tag: "plain texts", model: ["x", "y"], value: "y", index: 1, text: "y" },
            { tag: "plain numbers", model: [6, 8], value: 8, index: 1, text: "8" },
        ];
    }

    function test_set_value(row: var): void {
        const box = make(row.model ? { model: row.model } : {});
        box.currentIndex = 1;
        box.setValue(row.value);
        compare(box.currentIndex, row.index);
        if (row.text)
            compare(box.displayText, row.text);
    }

    function test_keys_that_open_data(): var {
        return [
            { tag: "Return", key: Qt.Key_Return, opens: 1 },
            { tag: "Enter", key: Qt.Key_Enter, opens: 1 },
            { tag: "F4", key: Qt.Key_F4, opens: 1 },
            { tag: "Alt+Down", key: Qt.Key_Down, modifiers: Qt.AltModifier, opens: 1 },
            { tag: "Space is swallowed", key: Qt.Key_Space, opens: 0 },
        ];
    }

    function test_keys_that_open(row: var): void {
        const box = make();
        const opened = spy(box, "opened");
        focusByKeyboard(box);
        keyClick(row.key, row.modifiers ?? Qt.NoModifier);
        compare(box.popup.visible, row.opens > 0);
        tryCompare(opened, "count", row.opens);
        compare(box.currentIndex, 0);
    }

    function test_keyboard_choice(): void {
        const box = make();
        focusByKeyboard(box);
        press([Qt.Key_Down, Qt.Key_Return, Qt.Key_Down, Qt.Key_Escape]);
        tryVerify(() => !box.popup.visible);
        compare(box.currentIndex, 1);
        press([Qt.Key_Return, Qt.Key_Down, Qt.Key_Return]);
        tryVerify(() => !box.popup.visible);
        compare(box.currentIndex, 2);
        compare(count, 2);
    }

    function test_choice_by_mouse(): void {
        const box = make();
        openByMouse(box);
        mouseClick(rowOf(box, 1));
        tryVerify(() => !box.popup.visible);
        compare(box.currentIndex, 1);
        compare(box.currentValue, "b");
    }

    function test_keyboard_in_a_list_that_a_click_opened_data(): var {
        return [
            { tag: "chosen", keys: [Qt.Key_Down, Qt.Key_Down, Qt.Key_Return], index: 2 },
            { tag: "left", keys: [Qt.Key_Down, Qt.Key_Escape], index: 0 },
        ];
    }

    function test_keyboard_in_a_list_that_a_click_opened(row: var): void {
        const other = make({ y: 100 });
        focusByKeyboard(other);
        const box = make();
        openByMouse(box);
        press(row.keys);
        tryVerify(() => !box.popup.visible);
        compare(box.currentIndex, row.index);
        compare(other.currentIndex, 0);
        verify(other.activeFocus, "the keyboard is back where it was");
    }

    function test_wheel_over_a_closed_box_changes_nothing(): void {
        const box = make();
        mouseWheel(box, 10, 10, 0, -120);
        compare(box.currentIndex, 0);
    }

    function test_dots(): void {
        const box = make();
        box.popup.open();
        for (const [auto, row] of [[null, -1], ["b", 1], ["no such value", -1]]) {
            box.autoValue = auto;
            const dots = [0, 1, 2].map(index => findChild(rowOf(box, index), "autoDot"));
            compare(dots.map(dot => dot.visible), [false, row === 1, false], auto);
            verify(dots.every(dot => !dot.modified));
        }
    }

    function test_long_texts_stay_apart(): void {
        const box = make({ width: 140 });
        box.popup.open();
        compare(findChild(rowOf(box, 0), "secondary").text, "10 %");
        compare(findChild(rowOf(box, 1), "secondary").width, 0);
        const row = rowOf(box, 2);
        const label = row.contentItem.children.find(child => child instanceof PbText);
        verify(label.truncated);
        verify(label.x + label.width < findChild(row, "secondary").x);
    }

    function test_popup_stays_in_the_window_and_scrolls(): void {
        const model = Array.from({ length: 100 }, (_, index) => ({ text: `Row ${index}`, value: index }));
        const box = make({ model: model, y: 250 });
        openByMouse(box);
        const list = box.popup.contentItem;
        const top = list.mapToItem(null, 0, 0).y;
        verify(top >= 0 && top + list.height <= Window.window.height, `${top}, ${list.height}`);
        mouseWheel(list, 20, 20, 0, -120);
        tryVerify(() => list.contentY > 0);
        compare(box.currentIndex, 0);
    }

    function test_outline_and_spinner(): void {
        const box = make();
        const plain = box.background.border.color;
        box.outline = PbComboBox.Outline.Warning;
        compare(box.background.border.color, PebbleStyle.color.warningYellow);
        box.outline = PbComboBox.Outline.Error;
        compare(box.background.border.color, PebbleStyle.color.darkRed);
        box.outline = PbComboBox.Outline.None;
        compare(box.background.border.color, plain);
        verify(!findChild(box, "spinner"));
        box.busy = true;
        verify(findChild(box, "spinner").visible);
        box.busy = false;
        tryVerify(() => !findChild(box, "spinner"));
    }

    function test_several_by_mouse(): void {
        const box = make({}, _multiMaker);
        compare(box.displayText, "None selected");
        openByMouse(box);
        for (const index of [1, 0])
            mouseClick(rowOf(box, index));
        verify(box.popup.opened);
        compare(parts, ["b", "a"]);
        compare(box.displayText, "Alpha, Beta");
        mouseClick(rowOf(box, 1));
        compare(parts, ["a"]);
        compare(count, 3);
        parts = ["c", "gone"];
        compare(box.currentItems, ["c", "gone"], "still bound");
        compare(box.displayText, entries[2].text);
    }

    function test_several_by_keyboard(): void {
        const box = make({}, _multiMaker);
        focusByKeyboard(box);
        keyClick(Qt.Key_Down);
        tryVerify(() => box.popup.opened);
        press([Qt.Key_Space, Qt.Key_Down, Qt.Key_Return]);
        verify(box.popup.opened);
        compare(parts, ["a", "b"]);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !box.popup.visible);
        compare(parts, ["a", "b"]);
    }
}
