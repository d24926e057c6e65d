import QtQuick
import QtTest
import "../../imageenhance/utils/viewport.mjs" as Viewport

TestCase {
    name: "Viewport"

    readonly property var whole: ({ x: 0, y: 0, width: 1, height: 1 })

    // Numbers to a millionth, rectangles and points as lists.
    function plain(value): var {
        if (typeof value === "number")
            return Math.round(value * 1e6) / 1e6;
        if (typeof value !== "object" || Array.isArray(value))
            return value;
        return ["x", "y", "width", "height"].filter(key => key in value).map(key => plain(value[key]));
    }

    function test_bounding_rect_data(): var {
        const quarter = Math.PI / 2;
        return [
            { tag: "whole", visible: whole, crop: whole, rotation: 0, expect: [0, 0, 1000, 800] },
            { tag: "part", visible: { x: 0.1, y: 0.25, width: 0.5, height: 0.5 }, crop: whole, rotation: 0, expect: [100, 200, 500, 400] },
            { tag: "between pixels", visible: { x: 0.1004, y: 0, width: 0.1004, height: 1 }, crop: whole, rotation: 0, expect: [100, 0, 101, 800] },
            { tag: "right edge, moved back after rounding up", visible: { x: 0.8996, y: 0, width: 0.1004, height: 1 }, crop: whole, rotation: 0, expect: [899, 0, 101, 800] },
            { tag: "inside a crop", visible: { x: 0.5, y: 0, width: 0.5, height: 1 }, crop: { x: 0.5, y: 0.5, width: 0.5, height: 0.5 }, rotation: 0, expect: [750, 400, 250, 400] },
            { tag: "crop turned by a quarter", visible: whole, crop: { x: 0.4, y: 0.25, width: 0.2, height: 0.5 }, rotation: quarter, expect: [300, 300, 400, 200] },
            { tag: "corner of a turned crop", visible: { x: 0, y: 0, width: 0.5, height: 0.5 }, crop: { x: 0.4, y: 0.25, width: 0.2, height: 0.5 }, rotation: quarter, expect: [300, 400, 200, 100] },
            { tag: "turned past the left edge", visible: whole, crop: { x: 0, y: 0.25, width: 0.1, height: 0.5 }, rotation: quarter, expect: [0, 350, 400, 100] },
            { tag: "turned, larger than the image", visible: whole, crop: whole, rotation: Math.PI / 4, expect: [0, 0, 1000, 800] }
        ];
    }

    function test_bounding_rect(row): void {
        const size = Qt.size(1000, 800);
        const rect = Viewport.boundingRect(row.visible, size, row.crop, row.rotation);
        // Sines of quarter turns are a hair off; a pixel more is no fault, one less would be.
        const [x, y, width, height] = row.expect;
        verify(rect.x <= x && rect.x >= x - 1, `x ${rect.x}`);
        verify(rect.y <= y && rect.y >= y - 1, `y ${rect.y}`);
        verify(rect.width >= width && rect.width <= width + 1, `width ${rect.width}`);
        verify(rect.height >= height && rect.height <= height + 1, `height ${rect.height}`);
        verify(rect.x >= 0 && rect.y >= 0 && rect.x + rect.width <= size.width && rect.y + rect.height <= size.height);
    }

    function test_values_data(): var {
        const view = Qt.size(800, 600);
        const wide = Qt.size(4000, 1000);
        const fit = (image, ratio, scale, cropping, crop = whole) => Viewport.fitZoom(image, crop, view, ratio, scale, cropping);
        const steps = (fit, zoom) => [Viewport.zoomAbove(Viewport.zoomList(fit), zoom), Viewport.zoomBelow(Viewport.zoomList(fit), zoom)];
        const move = (x, y, maxX, maxY, scaled = false) => Viewport.moveTarget(x, y, maxX, maxY, 1000, 1000, Qt.size(2000, 2000), scaled);
        const navigator = (width, height) => Viewport.navigatorRect(Qt.size(width, height), 300, 150);
        const frame = visible => Viewport.panRect(visible, { x: 0, y: 0, width: 200, height: 100 }, 8);
        const point = (x, y) => Viewport.mapPoint(x, y, Qt.size(100, 50), Qt.size(2000, 1000), 2);
        return [
            { tag: "area without a position is centred", value: Viewport.visibleArea(NaN, NaN, 0.5, 0.25), expect: [0.25, 0.375, 0.5, 0.25] },
            { tag: "area with half a position", value: Viewport.visibleArea(0.1, NaN, 0.5, 1), expect: [0.1, 0, 0.5, 1] },
            { tag: "fit, wide", value: fit(wide, 1, 1, false), expect: 0.2 },
            { tag: "fit, tall", value: fit(Qt.size(1000, 6000), 1, 1, false), expect: 0.1 },
            { tag: "fit, small", value: fit(Qt.size(400, 300), 1, 1, false), expect: 2 },
            { tag: "fit, fine screen", value: fit(wide, 2, 1, false), expect: 0.4 },
            { tag: "fit, enlarged", value: fit(wide, 1, 2, false), expect: 0.1 },
            { tag: "fit, half", value: fit(wide, 1, 1, false, { x: 0, y: 0, width: 0.5, height: 1 }), expect: 0.4 },
            { tag: "cropping fits turned, too", value: fit(wide, 1, 2, true), expect: 0.15 },
            { tag: "fit, nothing", value: fit(Qt.size(0, 0), 1, 1, false), expect: 1 },
            { tag: "steps between", value: steps(0.3, 0.4), expect: [0.5, 0.33] },
            { tag: "steps from an entry", value: steps(0.3, 0.5), expect: [0.67, 0.33] },
            { tag: "steps to the fit", value: steps(0.3, 0.33), expect: [0.5, 0.3] },
            { tag: "steps at the least", value: steps(0.3, 0.3), expect: [0.33, undefined] },
            { tag: "steps at the most", value: steps(0.3, 8), expect: [undefined, 4] },
            { tag: "steps to a fit above 1", value: steps(1.5, 1), expect: [1.5, undefined] },
            { tag: "steps without a fit", value: steps(0, 1), expect: [2, 0.67] },
            { tag: "move inside", value: move(50, 60, 100, 100), expect: [50, 60] },
            { tag: "move beyond", value: move(500, -5, 100, 100), expect: [100, 0] },
            { tag: "move in pixels of the picture", value: move(100, 100, 900, 900, true), expect: [50, 50] },
            { tag: "move of content smaller than the view", value: move(10, 10, -50, -50), expect: [0, 0] },
            { tag: "move without a bound", value: move(10, 10, NaN, 10), expect: undefined },
            { tag: "move without a position", value: move(NaN, 10, 10, 10), expect: undefined },
            { tag: "navigator, wide", value: navigator(3000, 1000), expect: [0, 0, 300, 100] },
            { tag: "navigator, tall", value: navigator(1000, 2000), expect: [0, 0, 75, 150] },
            { tag: "navigator, exact", value: navigator(2000, 1000), expect: [0, 0, 300, 150] },
            { tag: "navigator, nothing", value: navigator(0, 0), expect: [0, 0, 0, 0] },
            { tag: "frame is never lost", value: frame({ x: 0.999, y: 0.999, width: 0.001, height: 0.001 }), expect: [192, 92, 8, 8] },
            { tag: "frame of all", value: frame(whole), expect: [0, 0, 200, 100] },
            { tag: "point in the middle", value: point(50, 25), expect: [500, 250] },
            { tag: "point left of the picture", value: point(-1, 25), expect: [-1, -1] },
            { tag: "point below it", value: point(50, 51), expect: [-1, -1] },
            { tag: "percent of no number", value: Viewport.percent(NaN), expect: 0 },
            { tag: "percent of no end", value: Viewport.percent(Infinity), expect: 0 },
            { tag: "percent", value: Viewport.percent(0.335), expect: 34 }
        ];
    }

    function test_values(row): void {
        compare(plain(row.value), row.expect);
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
}
