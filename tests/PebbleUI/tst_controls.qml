import QtQuick
import QtTest
import PebbleUI

// The small controls: boxes, switch, scroll bar, label, note.
PebbleCase {
    id: _top
    name: "Controls"

    PbTooltipPlane {
        anchors.fill: parent
        Component.onCompleted: PebbleStyle.tooltipPlane = this
    }

    Column {

        PbCheckBox { id: _check; text: "Check" }
        PbRadioButton { id: _radio; text: "Radio" }
        PbSwitch { id: _switch; text: "Switch" }
        PbLabel { id: _label; text: "<b>name</b>.png"; tooltip.text: "A tip" }
        PbInfoTipBox { id: _note; width: 120; text: "A note of a few words that needs more than one line" }
    }

    PbBox {
        id: _box
        x: 320
        width: 40
        height: 30
        radius: 8
        color: "#ff0000"
        border.width: 2
        border.color: "#0000ff"
    }

    Flickable {
        id: _area
        x: 200
        width: 100
        height: 100
        contentWidth: 400
        contentHeight: 400

        PbScrollBar { id: _upright; orientation: Qt.Vertical; size: 0.01; height: 100 }
        PbScrollBar { id: _lying; orientation: Qt.Horizontal; size: 0.25; width: 100; barWidth: 12 }
    }

    function test_boxes_by_keyboard_and_by_mouse_which_leaves_the_keyboard_alone(): void {
        const boxes = [_check, _radio, _switch];
        focusByKeyboard(_check);
        for (const box of boxes) {
            verify(box.visualFocus);
            const ring = box.indicator.children.find(child => child instanceof PbFocusRing);
            verify(ring.visible);
            keyClick(Qt.Key_Space);
            verify(box.checked);
            keyClick(Qt.Key_Tab);
            verify(!ring.visible);
        }
        _top.forceActiveFocus();
        for (const box of boxes) {
            mouseClick(box, box.width - 4, box.height / 2);
            verify(!box.activeFocus);
        }
    }

    function test_label_shows_outside_text_as_it_is(): void {
        compare(_label.textFormat, Text.PlainText);
        mouseMove(_label, 5, 5);
        verify(_label.hovered);
        mouseMove(_top, 399, 299);
        verify(!_label.hovered);
    }

    function test_box_is_drawn_again_when_it_changes(): void {
        const seen = (x, y) => String(grabImage(_box).pixel(x, y));
        compare(seen(20, 15), "#ff0000");
        compare(seen(20, 1), "#0000ff");
        compare(seen(0, 15), "#0000ff");
        verify(seen(0, 0) !== "#0000ff");
        _box.color = "#00ff00";
        compare(seen(20, 15), "#00ff00");
        _box.border.width = 0;
        compare(seen(20, 0), "#00ff00");
        _box.radius = 0;
        compare(seen(0, 0), "#00ff00");
    }

    function test_note_grows_with_its_text(): void {
        const before = _note.implicitHeight;
        _note.width = 300;
        verify(_note.implicitHeight < before);
    }

    function test_scroll_bars_are_equally_thick(): void {
        compare(_upright.width, 8);
        compare(_lying.height, 12);
        fuzzyCompare(_upright.visualSize, 0.1, 0.001);
        _lying.size = 1;
        verify(!_lying.visible);
    }
}
