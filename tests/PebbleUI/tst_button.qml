import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "Button"

    Item {
        id: _shortcuts
        focus: true
    }

    PbButton {
        id: _button
        x: 20
        y: 20
        text: "Save"
        type: PbButton.Type.Secondary
    }

    PbButton {
        id: _icon
        x: 200
        y: 20
        compact: true
        iconSource: PebbleStyle.icon.trash
        tooltip.text: "Remove"
    }

    SignalSpy { id: _clicks; target: _button; signalName: "clicked" }

    function reset(): void {
        mouseMove(_top, 399, 299);
        _button.enabled = true;
        _button.selected = false;
        _shortcuts.forceActiveFocus();
        _clicks.clear();
    }

    function test_pressed_by_data(): var {
        return [
            { tag: "Space", key: Qt.Key_Space },
            { tag: "Return", key: Qt.Key_Return },
            { tag: "Enter", key: Qt.Key_Enter },
        ];
    }

    function test_pressed_by(row: var): void {
        keyClick(Qt.Key_Tab);
        verify(_button.activeFocus);
        keyClick(row.key);
        compare(_clicks.count, 1);
        _button.enabled = false;
        keyClick(row.key);
        compare(_clicks.count, 1);
    }

    function test_click_leaves_the_keyboard_alone(): void {
        mouseClick(_button);
        compare(_clicks.count, 1);
        verify(_shortcuts.activeFocus);
    }

    function test_background_takes_the_first_state_that_holds(): void {
        const colors = _button.style.background;
        compare(_button.background.color, colors.normal);
        _button.selected = true;
        compare(_button.background.color, colors.selected);
        mouseMove(_button, 5, 5);
        compare(_button.background.color, colors.hovered);
        _button.enabled = false;
        compare(_button.background.color, colors.disabled);
    }

    function test_icon_button_has_a_name(): void {
        compare(_icon.Accessible.name, "Remove");
        compare(_icon.height, 28);
        verify(_icon.width >= 28);
    }
}
