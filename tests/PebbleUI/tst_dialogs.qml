import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "Dialogs"
    width: 500
    height: 400

    property var pressed: []

    Item { id: _shortcuts; focus: true }

    PbDialog {
        id: _dialog
        title: "Close image?"
        messageText: "It has changes."
        buttons: [
            { type: PbButton.Type.Destructive, text: "Delete", onClicked: () => _top.pressed.push("delete") },
            { type: PbButton.Type.Secondary, text: "No", onClicked: () => _top.pressed.push("no") },
            { type: PbButton.Type.Primary, text: "Yes", enabled: _top.allowed, onClicked: () => _top.pressed.push("yes") },
        ]

        PbTextField { id: _field }
        PbCheckBox { id: _box; text: "Don't ask again" }
    }

    PbDialog {
        id: _plain
        messageText: "Long. ".repeat(2000)
    }

    property bool allowed: true

    SignalSpy { id: _accepted; target: _plain; signalName: "accepted" }
    SignalSpy { id: _rejected; target: _dialog; signalName: "rejected" }

    function reset(): void {
        allowed = true;
        pressed = [];
        _rejected.clear();
        _accepted.clear();
        _shortcuts.forceActiveFocus();
    }

    function cleanup(): void {
        _dialog.close();
        _plain.close();
        tryVerify(() => !_dialog.visible && !_plain.visible);
    }

    function show(dialog: PbDialog): void {
        dialog.open();
        tryVerify(() => dialog.opened);
    }

    function focusName(): string {
        const item = _top.Window.activeFocusItem;
        return item === _field ? "field" : item.Accessible.name;
    }

    function test_size_and_place(): void {
        show(_dialog);
        compare(_dialog.width, 330);
        verify(_dialog.height >= 200);
        compare(_dialog.x, Math.round((_dialog.parent.width - 330) / 2));
        compare(_dialog.footer.height, 68);
        show(_plain);
        tryCompare(_plain, "height", _plain.parent.height - 32);
    }

    function test_keys_data(): var {
        const E = Qt.Key_Escape, R = Qt.Key_Return, T = Qt.Key_Tab;
        return [
            { tag: "Return presses the primary button", keys: [R], pressed: ["yes"], rejected: 0 },
            { tag: "Enter too", keys: [Qt.Key_Enter], pressed: ["yes"], rejected: 0 },
            { tag: "the focused button goes first", focus: "No", keys: [R], pressed: ["no"], rejected: 0 },
            { tag: "Escape rejects", keys: [E], pressed: [], rejected: 1 },
            { tag: "a field takes the first Return", focus: _field, keys: [R], pressed: [], rejected: 0 },
            { tag: "and the dialog the second", focus: _field, keys: [R, R], pressed: ["yes"], rejected: 0 },
            { tag: "a field takes the first Escape", focus: _field, keys: [E], pressed: [], rejected: 0 },
            { tag: "and the dialog the second Escape", focus: _field, keys: [E, E], pressed: [], rejected: 1 },
            { tag: "Return on a check box is the dialog's", focus: _box, keys: [R], pressed: ["yes"], rejected: 0 },
            { tag: "a disabled default is passed over, and never for what destroys", disabled: true, keys: [R], pressed: ["no"], rejected: 0 },
        ];
    }

    function test_keys(row: var): void {
        allowed = !row.disabled;
        show(_dialog);
        if (row.focus)
            focusByKeyboard(row.focus instanceof Item ? row.focus : findButton(row.focus));
        press(row.keys);
        compare(pressed, row.pressed);
        compare(_rejected.count, row.rejected);
        compare(_dialog.opened, row.rejected === 0);
    }

    function findButton(name: string): Item {
        const search = item => item.text === name ? item : Array.from(item.children).map(search).find(found => found) ?? null;
        return search(_dialog.footer);
    }

    function test_Tab_goes_round_in_order(): void {
        show(_dialog);
        focusByKeyboard(_field);
        const order = ["field", "Don't ask again", "Delete", "No", "Yes", "Close"];
        for (const name of order.concat(order)) {
            compare(focusName(), name);
            keyClick(Qt.Key_Tab);
        }
        keyClick(Qt.Key_Backtab);
        compare(focusName(), "Close");
    }

    function test_a_changed_entry_keeps_the_focus(): void {
        show(_dialog);
        compare(focusName(), "Yes");
        focusByKeyboard(findButton("No"));
        allowed = false;
        compare(focusName(), "No");
    }

    function test_header_button_rejects(): void {
        show(_dialog);
        mouseClick(_dialog.header.closeButton);
        compare(_rejected.count, 1);
        tryVerify(() => _shortcuts.activeFocus);
    }

    function test_default_button_accepts(): void {
        show(_plain);
        compare(focusName(), "Done");
        keyClick(Qt.Key_Space);
        compare(_accepted.count, 1);
    }

    function test_long_message_scrolls_by_key(): void {
        show(_plain);
        const message = findChild(_plain.contentItem, "message");
        waitForPolish(_top.Window.window);
        verify(message.height < message.contentHeight);
        focusByKeyboard(message);
        keyClick(Qt.Key_Up);
        compare(message.contentY, 0);
        keyClick(Qt.Key_PageDown);
        compare(message.contentY, message.height);
        press(Array(200).fill(Qt.Key_PageDown));
        compare(message.contentY, message.contentHeight - message.height);
    }
}
