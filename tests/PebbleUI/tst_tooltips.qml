import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "Tooltips"
    width: 600
    height: 400

    PbTipPlacement { id: _placement }
    Rectangle { id: _target; width: 40; height: 20 }
    Item { id: _elsewhere; x: 7; y: 9; width: 100; height: 50 }

    PbButton {
        id: _button
        x: 100
        y: 200
        text: "Crop"
        tooltip.text: "Cuts the picture"
        tooltip.plane: _plane
    }

    PbLabel {
        id: _disabled
        x: 300
        y: 200
        text: "A file name"
        enabled: false
        tooltip.title: "<b>a & b</b>.png"
        tooltip.plane: _plane
    }

    PbHoverTip { id: _homeless; parent: _target; plane: null }
    PbTooltipPlane { id: _plane; anchors.fill: parent }

    function reset(): void {
        mouseMove(_top, 599, 399);
        _top.forceActiveFocus();
        _plane.hideCurrentTip();
        _plane.restrictTipToBounds = true;
        _button.tooltip.text = "Cuts the picture";
    }

    function showAt(x: real, y: real, options: var): Item {
        _target.x = x;
        _target.y = y;
        _plane.showTip(Object.assign({ target: _target, text: "here" }, options));
        return _plane.currentTip;
    }

    function test_placement(): void {
        const at = Qt.rect(200, 150, 40, 20);
        for (const [name, side, hug, to] of [
            ["above", PbTooltipPlane.Alignment.Top, false, Qt.point(200, 80)],
            ["above, hugging", PbTooltipPlane.Alignment.Top, true, Qt.point(170, 80)],
            ["right", PbTooltipPlane.Alignment.Right, false, Qt.point(250, 150)],
            ["below", PbTooltipPlane.Alignment.Bottom, false, Qt.point(200, 180)],
            ["below, hugging", PbTooltipPlane.Alignment.Bottom, true, Qt.point(170, 180)],
            ["left", PbTooltipPlane.Alignment.Left, true, Qt.point(90, 150)],
        ])
            compare(_placement.place(at, Qt.size(100, 60), side, hug), to, name);
    }

    function test_edges(): void {
        const size = Qt.size(100, 60);
        for (const [name, from, tip, to] of [
            ["left", Qt.point(-50, 70), size, Qt.point(10, 70)],
            ["right", Qt.point(550, 70), size, Qt.point(490, 70)],
            ["top", Qt.point(70, 3), size, Qt.point(70, 10)],
            ["bottom", Qt.point(70, 399), size, Qt.point(70, 330)],
            ["larger than the plane", Qt.point(70, 70), Qt.size(900, 900), Qt.point(10, 10)],
        ])
            compare(_placement.restrict(from, tip, Qt.size(600, 400)), to, name);
    }

    // The target in each corner, offsets pushing outwards, then back.
    function test_tip_stays_in_the_plane(): void {
        for (const [x, y] of [[0, 0], [560, 0], [0, 380], [560, 380]])
            for (const side of ["Top", "Right", "Bottom", "Left"])
                for (const offset of [-30, 0, 30]) {
                    const tip = showAt(x, y, { text: "long ".repeat(40), alignment: PbTooltipPlane.Alignment[side],
                                               offsetX: offset, offsetY: offset });
                    const place = `${side} of ${x},${y} by ${offset}: ${tip.x},${tip.y}`;
                    compare(tip.width, 320);
                    verify(tip.x >= 10 && tip.x + tip.width <= 590, place);
                    verify(tip.y >= 10 && tip.y + tip.height <= 390, place);
                }
    }

    function test_near_the_right_edge_with_a_negative_offset(): void {
        compare(showAt(540, 200, { offsetX: -5 }).x, 600 - 320 - 10);
        _plane.restrictTipToBounds = false;
        compare(showAt(540, 200, { offsetX: -5 }).x, 535);
    }

    function test_other_items_stand_for_the_target(): void {
        const below = PbTooltipPlane.Alignment.Bottom;
        const first = showAt(100, 100, { targetForX: _elsewhere, alignment: below, offsetX: 20 });
        compare([first.x, first.y], [27, 130]);
        const second = showAt(100, 100, { targetForY: _elsewhere, alignment: below });
        compare([second.x, second.y], [100, 69]);
    }

    function test_one_tip_at_a_time_and_stale_ids(): void {
        const first = _plane.showTip({ target: _target, text: "one" });
        const second = _plane.showTip({ target: _target, text: "two" });
        verify(second !== first);
        compare(_plane.currentTip.text, "two");
        _plane.hideTip(first);
        verify(_plane.currentTip);
        _plane.hideTip(second);
        compare(_plane.currentTip, null);
        _plane.hideTip(second);
    }

    function test_no_target(): void {
        for (const options of [{}, { target: null }, undefined]) {
            ignoreWarning("Target is required to show tip");
            compare(_plane.showTip(options), -1);
        }
    }

    function test_a_tip_goes_with_its_target(): void {
        const target = createTemporaryQmlObject("import QtQuick; Item {}", _top);
        _plane.showTip({ target: target, text: "soon gone" });
        target.destroy();
        tryCompare(_plane, "currentTip", null);
    }

    function test_hugging_is_never_wider_than_usual(): void {
        verify(showAt(0, 0, { text: "short", hugContents: true }).width < 100);
        const tip = showAt(0, 0, { text: "long ".repeat(100), hugContents: true });
        compare(tip.width, 320);
        verify(tip.height > 100);
    }

    function test_hover(): void {
        mouseMove(_button, 5, 5);
        verify(_button.tooltip.hovered);
        tryVerify(() => _plane.currentTip?.text === "Cuts the picture");
        _button.tooltip.text = "Cuts it again";
        compare(_plane.currentTip.text, "Cuts it again");
        _button.tooltip.text = "";
        compare(_plane.currentTip, null);
        _button.tooltip.text = "Back";
        mouseMove(_top, 599, 399);
        mouseMove(_button, 6, 6);
        tryVerify(() => _plane.currentTip?.text === "Back");
        mouseMove(_top, 599, 399);
        compare(_plane.currentTip, null);
    }

    function test_disabled_control_explains_itself_in_plain_text(): void {
        mouseMove(_disabled, 5, 5);
        tryVerify(() => _plane.currentTip?.title === "<b>a & b</b>.png");
        compare(_plane.currentTip.textFormat, Text.PlainText);
    }

    function test_keyboard_focus_shows_it_and_a_click_passes(): void {
        focusByKeyboard(_button);
        compare(_plane.currentTip?.text, "Cuts the picture");
        _top.forceActiveFocus();
        compare(_plane.currentTip, null);
    }

    function test_without_a_plane(): void {
        ignoreWarning("PbHoverTip configured without tooltip plane!!");
        _homeless.text = "nowhere to go";
        mouseMove(_target, 5, 5);
        verify(_homeless.hovered);
        _homeless.text = "";
    }
}
