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

    function test_set_value(): void {
        for (const [name, model, value, index, text] of [
            ["known", entries, "c", 2, entries[2].text],
            ["unknown", entries, "nothing", 0, "Alpha"],
            ["undefined", entries, undefined, 0, "Alpha"],
            ["other type", entries, 2, 0, "Alpha"],
            ["plain texts", ["x", "y"], "y", 1, "y"],
            ["plain numbers", [6, 8], 8, 1, "8"],
        ]) {
            const box = make({ model: model, currentIndex: 1 });
            box.setValue(value);
            compare(box.currentIndex, index, name);
            compare(box.displayText, text, name);
        }
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

    function test_choice_by_mouse_and_no_wheel(): void {
        const box = make();
        mouseWheel(box, 10, 10, 0, -120);
        compare(box.currentIndex, 0);
        openByMouse(box);
        mouseClick(rowOf(box, 1));
        tryVerify(() => !box.popup.visible);
        compare(box.currentIndex, 1);
        compare(box.currentValue, "b");
    }

    function test_keyboard_in_a_list_that_a_click_opened(): void {
        const other = make({ y: 100 });
        focusByKeyboard(other);
        const box = make();
        for (const [keys, index] of [[[Qt.Key_Down, Qt.Key_Escape], 0],
                                     [[Qt.Key_Down, Qt.Key_Down, Qt.Key_Return], 2]]) {
            openByMouse(box);
            press(keys);
            tryVerify(() => !box.popup.visible);
            compare(box.currentIndex, index);
            compare(other.currentIndex, 0);
            verify(other.activeFocus, "the keyboard is back where it was");
        }
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
