import QtQuick
import QtTest
import "../../imageenhance/utils/viewport.mjs" as Viewport

TestCase {
    name: "Viewport"

    readonly property var whole: ({ x: 0, y: 0, width: 1, height: 1 })

    function compareRect(actual, x, y, width, height, message): void {
        fuzzyCompare(actual.x, x, 0.001, message);
        fuzzyCompare(actual.y, y, 0.001, message);
        fuzzyCompare(actual.width, width, 0.001, message);
        fuzzyCompare(actual.height, height, 0.001, message);
    }

    function test_bounding_rect_data(): var {
        const size = { width: 1000, height: 800 };
        const quarter = Math.PI / 2;
        return [
            { tag: "whole", visible: whole, crop: whole, rotation: 0, size, expect: [0, 0, 1000, 800] },
            { tag: "part", visible: { x: 0.1, y: 0.25, width: 0.5, height: 0.5 }, crop: whole, rotation: 0, size, expect: [100, 200, 500, 400] },
            { tag: "between pixels", visible: { x: 0.1004, y: 0, width: 0.1004, height: 1 }, crop: whole, rotation: 0, size, expect: [100, 0, 101, 800] },
            { tag: "right edge, moved back after rounding up", visible: { x: 0.8996, y: 0, width: 0.1004, height: 1 }, crop: whole, rotation: 0, size, expect: [899, 0, 101, 800] },
            { tag: "inside a crop", visible: { x: 0.5, y: 0, width: 0.5, height: 1 }, crop: { x: 0.5, y: 0.5, width: 0.5, height: 0.5 }, rotation: 0, size, expect: [750, 400, 250, 400] },
            { tag: "crop turned by a quarter", visible: whole, crop: { x: 0.4, y: 0.25, width: 0.2, height: 0.5 }, rotation: quarter, size, expect: [300, 300, 400, 200] },
            { tag: "corner of a turned crop", visible: { x: 0, y: 0, width: 0.5, height: 0.5 }, crop: { x: 0.4, y: 0.25, width: 0.2, height: 0.5 }, rotation: quarter, size, expect: [300, 400, 200, 100] },
            { tag: "turned past the left edge", visible: whole, crop: { x: 0, y: 0.25, width: 0.1, height: 0.5 }, rotation: quarter, size, expect: [0, 350, 400, 100] },
            { tag: "turned, larger than the image", visible: whole, crop: whole, rotation: Math.PI / 4, size, expect: [0, 0, 1000, 800] }
        ];
    }

    function test_bounding_rect(row): void {
        const rect = Viewport.boundingRect(row.visible, row.size, row.crop, row.rotation);
        // Sines of quarter turns are a hair off; a pixel more is no fault, one less would be.
        const [x, y, width, height] = row.expect;
        verify(rect.x <= x && rect.x >= x - 1, `x ${rect.x}`);
        verify(rect.y <= y && rect.y >= y - 1, `y ${rect.y}`);
        verify(rect.width >= width && rect.width <= width + 1, `width ${rect.width}`);
        verify(rect.height >= height && rect.height <= height + 1, `height ${rect.height}`);
        verify(rect.x >= 0 && rect.y >= 0 && rect.x + rect.width <= row.size.width && rect.y + rect.height <= row.size.height);
    }

    function test_visible_area_without_a_position_is_centred(): void {
        compareRect(Viewport.visibleArea(NaN, NaN, 0.5, 0.25), 0.25, 0.375, 0.5, 0.25);
        compareRect(Viewport.visibleArea(0.1, NaN, 0.5, 1), 0.1, 0, 0.5, 1);
    }

    function test_fit_data(): var {
        const view = Qt.size(800, 600);
        return [
            { tag: "wide", image: Qt.size(4000, 1000), crop: whole, ratio: 1, scale: 1, cropping: false, fit: 0.2 },
            { tag: "tall", image: Qt.size(1000, 6000), crop: whole, ratio: 1, scale: 1, cropping: false, fit: 0.1 },
            { tag: "small", image: Qt.size(400, 300), crop: whole, ratio: 1, scale: 1, cropping: false, fit: 2 },
            { tag: "fine screen", image: Qt.size(4000, 1000), crop: whole, ratio: 2, scale: 1, cropping: false, fit: 0.4 },
            { tag: "enlarged", image: Qt.size(4000, 1000), crop: whole, ratio: 1, scale: 2, cropping: false, fit: 0.1 },
            { tag: "half", image: Qt.size(4000, 1000), crop: { x: 0, y: 0, width: 0.5, height: 1 }, ratio: 1, scale: 1, cropping: false, fit: 0.4 },
            { tag: "cropping fits turned, too", image: Qt.size(4000, 1000), crop: whole, ratio: 1, scale: 2, cropping: true, fit: 0.15 },
            { tag: "nothing", image: Qt.size(0, 0), crop: whole, ratio: 1, scale: 1, cropping: false, fit: 1 }
        ];
    }

    function test_fit(row): void {
        const view = Qt.size(800, 600);
        fuzzyCompare(Viewport.fitZoom(row.image, row.crop, view, row.ratio, row.scale, row.cropping), row.fit, 1e-9);
    }

    function test_steps_data(): var {
        return [
            { tag: "between", fit: 0.3, zoom: 0.4, above: 0.5, below: 0.33 },
            { tag: "on an entry", fit: 0.3, zoom: 0.5, above: 0.67, below: 0.33 },
            { tag: "to the fit", fit: 0.3, zoom: 0.33, above: 0.5, below: 0.3 },
            { tag: "at the least", fit: 0.3, zoom: 0.3, above: 0.33, below: undefined },
            { tag: "at the most", fit: 0.3, zoom: 8, above: undefined, below: 4 },
            { tag: "fit above 1", fit: 1.5, zoom: 1, above: 1.5, below: undefined },
            { tag: "no fit", fit: 0, zoom: 1, above: 2, below: 0.67 }
        ];
    }

    function test_steps(row): void {
        const list = Viewport.zoomList(row.fit);
        compare(Viewport.zoomAbove(list, row.zoom), row.above);
        compare(Viewport.zoomBelow(list, row.zoom), row.below);
    }

    function test_wheel_adds_up(): void {
        let turned = { sum: 0, zoom: 1 };
        for (let i = 0; i < 3; ++i)
            turned = Viewport.wheel(turned.sum, 30, turned.zoom);
        compare(turned.zoom, 1);
        turned = Viewport.wheel(turned.sum, 30, turned.zoom);
        fuzzyCompare(turned.zoom, 1.05, 1e-9);
        compare(turned.sum, 0);
        fuzzyCompare(Viewport.wheel(0, -120, 1).zoom, 0.95, 1e-9);
        compare(Viewport.wheel(90, -60, 1), { sum: 30, zoom: 1 });
    }

    function test_move_data(): var {
        return [
            { tag: "inside", x: 50, y: 60, maxX: 100, maxY: 100, scaled: false, target: { x: 50, y: 60 } },
            { tag: "beyond", x: 500, y: -5, maxX: 100, maxY: 100, scaled: false, target: { x: 100, y: 0 } },
            { tag: "in pixels of the picture", x: 100, y: 100, maxX: 900, maxY: 900, scaled: true, target: { x: 50, y: 50 } },
            { tag: "content smaller than the view", x: 10, y: 10, maxX: -50, maxY: -50, scaled: false, target: { x: 0, y: 0 } },
            { tag: "no bound", x: 10, y: 10, maxX: NaN, maxY: 10, scaled: false, target: undefined },
            { tag: "no position", x: NaN, y: 10, maxX: 10, maxY: 10, scaled: false, target: undefined }
        ];
    }

    function test_move(row): void {
        compare(Viewport.moveTarget(row.x, row.y, row.maxX, row.maxY, 1000, 1000, Qt.size(2000, 2000), row.scaled), row.target);
    }

    function test_navigator_data(): var {
        return [
            { tag: "wide", cropped: Qt.size(3000, 1000), expect: [0, 0, 300, 100] },
            { tag: "tall", cropped: Qt.size(1000, 2000), expect: [0, 0, 75, 150] },
            { tag: "exact", cropped: Qt.size(2000, 1000), expect: [0, 0, 300, 150] },
            { tag: "nothing", cropped: Qt.size(0, 0), expect: [0, 0, 0, 0] }
        ];
    }

    function test_navigator(row): void {
        compareRect(Viewport.navigatorRect(row.cropped, 300, 150), ...row.expect);
    }

    function test_frame_in_navigator_is_never_lost(): void {
        const fill = { x: 0, y: 0, width: 200, height: 100 };
        compareRect(Viewport.panRect({ x: 0.999, y: 0.999, width: 0.001, height: 0.001 }, fill, 8), 192, 92, 8, 8);
        compareRect(Viewport.panRect(whole, fill, 8), 0, 0, 200, 100);
    }

    function test_point_data(): var {
        return [
            { tag: "middle", x: 50, y: 25, expect: { x: 500, y: 250 } },
            { tag: "left of it", x: -1, y: 25, expect: { x: -1, y: -1 } },
            { tag: "below it", x: 50, y: 51, expect: { x: -1, y: -1 } }
        ];
    }

    function test_point(row): void {
        compare(Viewport.mapPoint(row.x, row.y, Qt.size(100, 50), Qt.size(2000, 1000), 2), row.expect);
    }

    function test_percent_of_no_number(): void {
        compare(Viewport.percent(NaN), 0);
        compare(Viewport.percent(Infinity), 0);
        compare(Viewport.percent(0.335), 34);
    }
}
