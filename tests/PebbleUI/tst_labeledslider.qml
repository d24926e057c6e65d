import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "LabeledSlider"
    maker: Component { PbLabeledSlider { text: "Strength" } }
    spied: "moved"

    function cleanup(): void {
        PebbleStyle.darkMode = true;
    }

    function test_typing(): void {
        for (const row of [
            { tag: "a number", now: { value: 50 }, keys: "72", during: 72, text: "72", left: 72, leftText: "72" },
            { tag: "above the range", now: { value: 50 }, keys: "250", during: 25, text: "250", left: 50, leftText: "50" },
            { tag: "below the range", now: { from: 8, to: 25, value: 12 }, keys: "5", during: 12, text: "5", left: 12, leftText: "12" },
            { tag: "negative", now: { from: -25, to: 75, value: 0 }, keys: "-20", during: -20, text: "-20", left: -20, leftText: "-20" },
            { tag: "letters never get in", now: { value: 50 }, keys: "a7", during: 7, text: "7", left: 7, leftText: "7" },
            { tag: "leading zero is tidied on leaving", now: { value: 50 }, keys: "07", during: 7, text: "07", left: 7, leftText: "7" },
            { tag: "decimals", now: { to: 10, decimals: 2, value: 1 }, keys: "2.25", during: 2.25, text: "2.25", left: 2.25, leftText: "2.25" },
            { tag: "decimal comma", now: { to: 10, decimals: 1, value: 1 }, keys: "2,5", during: 2.5, text: "2.5", left: 2.5, leftText: "2.5" },
            { tag: "decimals above the range but below ten", now: { to: 1, decimals: 1, value: 0.5 }, keys: "5", during: 0.5, text: "5", left: 0.5, leftText: "0.5" },
            { tag: "decimals above ten are refused", now: { to: 100, decimals: 1, value: 5 }, keys: "25", during: 2, text: "2", left: 2, leftText: "2.0" },
        ]) {
            const slider = make(row.now);
            mouseClick(slider.textField);
            compare(slider.textField.selectedText, slider.textField.text, row.tag);
            press(row.keys);
            compare(slider.value, row.during, row.tag);
            compare(slider.textField.text, row.text, row.tag);
            keyClick(Qt.Key_Escape);
            verify(!slider.textField.activeFocus);
            compare(slider.value, row.left, row.tag);
            compare(slider.textField.text, row.leftText, row.tag);
        }
    }

    function test_slider_rewrites_the_text(): void {
        const slider = make({ value: 50, to: 10, decimals: 2 });
        slider.slider.forceActiveFocus();
        slider.value = 3;
        keyClick(Qt.Key_Right);
        compare(slider.textField.text, "3.01");
        compare(count, 1);
    }

    function test_value_between_steps_is_not_written_back(): void {
        const slider = make({ value: 37.2 });
        compare(slider.textField.text, "37");
        compare(slider.value, 37.2);
        compare(count, 0);
    }

    function test_arrows_stop_at_the_ends(): void {
        const slider = make({ value: 99 });
        slider.textField.forceActiveFocus();
        for (const wanted of [100, 100]) {
            keyClick(Qt.Key_Up);
            compare(slider.value, wanted);
        }
        keyClick(Qt.Key_Down);
        compare(slider.textField.text, "99");
    }

    function test_double_click_on_the_label_takes_the_default(): void {
        const slider = make({ value: 50, defaultValue: 20, autoValue: 70 });
        mouseDoubleClickSequence(slider.label, 5, 5);
        compare(slider.value, 20);
        compare(count, 1);
    }

    function test_dot(): void {
        for (const [name, dark, value, auto, shown] of [
            ["dark, at Autopilot's value", true, 70, 70, true],
            ["dark, changed", true, 50, 70, true],
            ["light, at Autopilot's value", false, 70, 70, true],
            ["light, changed", false, 50, 70, false],
            ["no Autopilot", true, 50, -1, false],
        ]) {
            PebbleStyle.darkMode = dark;
            const dot = findChild(make({ value: value, autoValue: auto }), "autoDot");
            compare(dot.visible, shown, name);
            compare(dot.modified, value !== auto, name);
        }
    }

    function test_tab_goes_from_field_to_slider_to_the_next(): void {
        const first = make({ value: 1 });
        const second = make({ value: 2, y: 60 });
        first.textField.forceActiveFocus();
        for (const item of [first.slider, second.textField, second.slider]) {
            keyClick(Qt.Key_Tab);
            verify(item.activeFocus);
        }
        compare(first.implicitWidth, 218);
        compare(first.height, 36);
    }
}
