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

    function test_placement_data(): var {
        const at = Qt.rect(200, 150, 40, 20);
        return [
            { tag: "above", side: PbTooltipPlane.Alignment.Top, target: at, x: 200, y: 80 },
            { tag: "above, hugging", side: PbTooltipPlane.Alignment.Top, hug: true, target: at, x: 170, y: 80 },
            { tag: "right", side: PbTooltipPlane.Alignment.Right, target: at, x: 250, y: 150 },
            { tag: "below", side: PbTooltipPlane.Alignment.Bottom, target: at, x: 200, y: 180 },
            { tag: "below, hugging", side: PbTooltipPlane.Alignment.Bottom, hug: true, target: at, x: 170, y: 180 },
            { tag: "left", side: PbTooltipPlane.Alignment.Left, hug: true, target: at, x: 90, y: 150 },
        ];
    }

    function test_placement(row: var): void {
        compare(_placement.place(row.target, Qt.size(100, 60), row.side, row.hug ?? false), Qt.point(row.x, row.y));
    }

    function test_edges_data(): var {
        const size = Qt.size(100, 60);
        return [
            { tag: "left", from: Qt.point(-50, 70), tip: size, x: 10, y: 70 },
            { tag: "right", from: Qt.point(550, 70), tip: size, x: 490, y: 70 },
            { tag: "top", from: Qt.point(70, 3), tip: size, x: 70, y: 10 },
            { tag: "bottom", from: Qt.point(70, 399), tip: size, x: 70, y: 330 },
            { tag: "larger than the plane", from: Qt.point(70, 70), tip: Qt.size(900, 900), x: 10, y: 10 },
        ];
    }

    function test_edges(row: var): void {
        compare(_placement.restrict(row.from, row.tip, Qt.size(600, 400)), Qt.point(row.x, row.y));
    }

    // The target in each corner, offsets pushing outwards, then back.
    function test_tip_stays_in_the_plane_data(): var {
        const rows = [];
        for (const [x, y] of [[0, 0], [560, 0], [0, 380], [560, 380]])
            for (const side of ["Top", "Right", "Bottom", "Left"])
                for (const offset of [-30, 0, 30])
                    rows.push({ tag: `${side} of ${x},${y} by ${offset}`, x: x, y: y, offset: offset,
                                side: PbTooltipPlane.Alignment[side] });
        return rows;
    }

    function test_tip_stays_in_the_plane(row: var): void {
        _target.x = row.x;
        _target.y = row.y;
        _plane.showTip({ target: _target, text: "long ".repeat(40), alignment: row.side, offsetX: row.offset,
                         offsetY: row.offset });
        const tip = _plane.currentTip;
        compare(tip.width, 320);
        verify(tip.x >= 10 && tip.x + tip.width <= 590, `x ${tip.x}`);
        verify(tip.y >= 10 && tip.y + tip.height <= 390, `y ${tip.y}`);
    }

    function test_near_the_right_edge_with_a_negative_offset(): void {
        _target.x = 540;
        _target.y = 200;
        _plane.showTip({ target: _target, text: "here", offsetX: -5 });
        compare(_plane.currentTip.x, 600 - 320 - 10);
        _plane.restrictTipToBounds = false;
        _plane.showTip({ target: _target, text: "here", offsetX: -5 });
        compare(_plane.currentTip.x, 535);
    }

    function test_other_items_stand_for_the_target(): void {
        _target.x = 100;
        _target.y = 100;
        const below = PbTooltipPlane.Alignment.Bottom;
        _plane.showTip({ target: _target, targetForX: _elsewhere, text: "x", alignment: below, offsetX: 20 });
        compare([_plane.currentTip.x, _plane.currentTip.y], [27, 130]);
        _plane.showTip({ target: _target, targetForY: _elsewhere, text: "x", alignment: below });
        compare([_plane.currentTip.x, _plane.currentTip.y], [100, 69]);
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

    function test_no_target_data(): var {
        return [{ tag: "none", opts: {} }, { tag: "null", opts: { target: null } }, { tag: "no options", opts: undefined }];
    }

    function test_no_target(row: var): void {
        ignoreWarning("Target is required to show tip");
        compare(_plane.showTip(row.opts), -1);
    }

    function test_a_tip_goes_with_its_target(): void {
        const target = createTemporaryQmlObject("import QtQuick; Item {}", _top);
        _plane.showTip({ target: target, text: "soon gone" });
        target.destroy();
        tryCompare(_plane, "currentTip", null);
    }

    function test_hugging_is_never_wider_than_usual(): void {
        _plane.showTip({ target: _target, text: "short", hugContents: true });
        verify(_plane.currentTip.width < 100);
        _plane.showTip({ target: _target, text: "long ".repeat(100), hugContents: true });
        compare(_plane.currentTip.width, 320);
        verify(_plane.currentTip.height > 100);
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
