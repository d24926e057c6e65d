import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "TextField"
    maker: Component { PbTextField {} }
    spied: "accepted"

    Component {
        id: _labeledMaker
        PbLabeledTextField {
            labelText: "W"
            units: "px"
            valueType: PbTextField.Type.Integer
            value: "1200"
        }
    }

    function test_leaving(): void {
        const [integer, text] = [PbTextField.Type.Integer, PbTextField.Type.Text];
        for (const row of [
            { tag: "Return", type: integer, typed: "7", key: Qt.Key_Return, leaves: true, after: "7", accepts: 1 },
            { tag: "Enter", type: integer, typed: "7", key: Qt.Key_Enter, leaves: true, after: "7", accepts: 1 },
            { tag: "Escape keeps a good text", type: integer, typed: "7", key: Qt.Key_Escape, leaves: true, after: "7", accepts: 0 },
            { tag: "Return stays with an error", type: integer, typed: "-", key: Qt.Key_Return, leaves: false, after: "-", accepts: 0 },
            { tag: "Enter restores a bad number", type: integer, typed: "-", key: Qt.Key_Enter, leaves: true, after: "40", accepts: 0 },
            { tag: "Escape restores a bad number", type: integer, typed: "-", key: Qt.Key_Escape, leaves: true, after: "40", accepts: 0 },
            { tag: "Tab restores a bad number", type: integer, typed: "-", key: Qt.Key_Tab, leaves: true, after: "40", accepts: 0 },
            { tag: "refused by the check", type: integer, typed: "13", key: Qt.Key_Return, leaves: false, after: "13", accepts: 0 },
            { tag: "a bad number may stay", type: integer, typed: "-", key: Qt.Key_Escape, leaves: true, after: "-", accepts: 0, keep: true },
            { tag: "text is never restored", type: text, typed: "13", key: Qt.Key_Escape, leaves: true, after: "4013", accepts: 0 },
        ]) {
            make({ y: 60 }); // somewhere for Tab to go
            const field = make({ type: row.type, text: "40", validateInput: t => !t.includes("13"), resetOnError: !row.keep });
            focusByKeyboard(field);
            press([...row.typed, row.key]);
            compare(field.activeFocus, !row.leaves, row.tag);
            compare(field.text, row.after, row.tag);
            compare(count, row.accepts, row.tag);
        }
    }

    function test_stepping(): void {
        for (const row of [
            { tag: "integer", type: PbTextField.Type.Integer, decimals: 0, text: "9", up: "10" },
            { tag: "tenths without drift", type: PbTextField.Type.Real, decimals: 1, text: "0.2", up: "0.3" },
            { tag: "thousandths", type: PbTextField.Type.Real, decimals: 3, text: "1.999", up: "2.000" },
            { tag: "below zero", type: PbTextField.Type.Integer, decimals: 0, text: "-1", up: "0" },
            { tag: "from no number", type: PbTextField.Type.Integer, decimals: 0, text: "", up: "", warns: true },
        ]) {
            const field = make({ type: row.type, decimals: row.decimals, text: row.text });
            field.forceActiveFocus();
            for (const [key, text] of [[Qt.Key_Up, row.up], [Qt.Key_Down, row.text]]) {
                if (row.warns)
                    ignoreWarning("Inc/Dec was requested, but current value is NaN");
                keyClick(key);
                compare(field.text, text, row.tag);
            }
        }
    }

    function test_stepping_can_be_replaced(): void {
        const field = make({ type: PbTextField.Type.Integer, text: "8" });
        field.increment = () => { field.text = "16"; };
        field.forceActiveFocus();
        keyClick(Qt.Key_Up);
        compare(field.text, "16");
    }

    function test_selection_on_focus(): void {
        for (const [name, type, take, selected] of [
            ["number by Tab", PbTextField.Type.Integer, focusByKeyboard, "40"],
            ["number by click", PbTextField.Type.Integer, mouseClick, "40"],
            ["text by click", PbTextField.Type.Text, mouseClick, ""],
        ]) {
            const field = make({ type: type, text: "40" });
            take(field);
            verify(field.activeFocus);
            compare(field.selectedText, selected, name);
        }
    }

    // Nothing may jump when the keyboard comes. Frame and cursor, which may change, are left away.
    function test_resting_looks_as_in_use(): void {
        for (const row of [
            { tag: "text", properties: { text: "portrait, Ångström" } },
            { tag: "number", properties: { text: "-12.50", type: PbTextField.Type.Real } },
            { tag: "tall", properties: { text: "tall", height: 61 } },
            { tag: "secret", properties: { text: "secret", echoMode: TextInput.Password } },
            { tag: "placeholder", properties: { placeholderText: "a name" } },
        ]) {
            const field = make(Object.assign({ selectAllOnFocus: false, width: 200 }, row.properties));
            field.background.visible = false;
            const resting = grabImage(field);
            field.forceActiveFocus();
            field.cursorVisible = false;
            verify(grabImage(field).equals(resting));
            field.focus = false;
            verify(grabImage(field).equals(resting));
            field.text = "";
            field.placeholderText = "";
            verify(!grabImage(field).equals(resting), "there was something to see");
        }
    }

    function test_long_text_ends_in_dots_until_it_is_edited(): void {
        const field = make({ width: 80, text: "a name that is too long to be shown" });
        const resting = findChild(field, "resting") as PbText;
        verify(resting.visible && resting.truncated);
        field.forceActiveFocus();
        verify(!resting.visible);
        field.focus = false;
        field.select(0, 3);
        verify(!resting.visible, "a selection is seen");
    }

    function test_comma_replaces_what_is_selected_and_the_wheel_nothing(): void {
        const field = make({ type: PbTextField.Type.Real, text: "12" });
        field.forceActiveFocus();
        mouseWheel(field, 10, 10, 0, 120);
        compare(field.text, "12");
        field.select(1, 2);
        press([",", "5"]);
        compare(field.text, "1.5");
    }

    function test_labeled_field(): void {
        const field = createTemporaryObject(_labeledMaker, _top);
        mouseClick(field, 10, field.height / 2);
        verify(field.inputFocus, "a click on the label goes to the field");
        compare(field.border.color, PebbleStyle.color.primeBlue);
        keyClick("-");
        compare(field.border.color, PebbleStyle.color.primeRed);
        keyClick(Qt.Key_Escape);
        compare(field.value, "1200");
        field.enabled = false;
        compare(field.opacity, 0.6);
        compare(field.field.Accessible.name, "W");
    }
}
