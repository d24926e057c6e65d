import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "Button"

    maker: Component { PbButton { text: "Save"; type: PbButton.Type.Secondary } }
    spied: "clicked"

    Item { id: _shortcuts; focus: true }

    function reset(): void {
        mouseMove(_top, 399, 299);
        _shortcuts.forceActiveFocus();
    }

    function test_pressed_by_key(): void {
        const button = make();
        keyClick(Qt.Key_Tab);
        verify(button.activeFocus);
        const keys = [Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter];
        for (const [index, key] of keys.entries()) {
            keyClick(key);
            compare(count, index + 1);
        }
        button.enabled = false;
        press(keys);
        compare(count, keys.length);
    }

    function test_click_leaves_the_keyboard_alone(): void {
        mouseClick(make());
        compare(count, 1);
        verify(_shortcuts.activeFocus);
    }

    function test_background_takes_the_first_state_that_holds(): void {
        const button = make();
        const colors = button.style.background;
        compare(button.background.color, colors.normal);
        button.selected = true;
        compare(button.background.color, colors.selected);
        mouseMove(button, 5, 5);
        compare(button.background.color, colors.hovered);
        button.enabled = false;
        compare(button.background.color, colors.disabled);
    }

    function test_icon_button_has_a_name(): void {
        const icon = make({ compact: true, text: "", iconSource: PebbleStyle.icon.trash, "tooltip.text": "Remove" });
        compare(icon.Accessible.name, "Remove");
        compare(icon.height, 28);
        verify(icon.width >= 28);
    }
}
