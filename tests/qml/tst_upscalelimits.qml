import QtQuick
import QtTest
import "../../imageenhance/utils/upscaleLimits.mjs" as Limits

TestCase {
    name: "UpscaleLimits"

    readonly property var alone: host("", false)
    readonly property var picture: Qt.size(3000, 2000)

    function host(pluginDisplayName: string, psAutomate: bool): var {
        return { pluginDisplayName, psAutomate, scaleMin: 0.2, pixelMax: 32000 };
    }

    function plain(size): var {
        return [size.scale, size.width, size.height].map(number => Math.round(number * 1e4) / 1e4).concat(size.mode);
    }

    function test_limits_data(): var {
        const lightroom = host("Lightroom Classic", false);
        return [
            { tag: "capped at 6", image: [3000, 2000], max: [6, 18000, 12000], min: [600, 400] },
            { tag: "exactly 4", image: [8000, 6000], max: [4, 32000, 24000], min: [1600, 1200] },
            { tag: "longest side is reached whole", image: [3000, 7001], max: [32000 / 7001, 13712, 32000], min: [600, 1400] },
            { tag: "automation", image: [10000, 5000], host: host("Editor", true), max: [3, 30000, 15000], min: [2000, 1000] },
            { tag: "Lightroom, by area", image: [10000, 10000], host: lightroom, max: [Math.sqrt(5.12), 22627, 22627], min: [2000, 2000] },
            { tag: "Lightroom, small", image: [1000, 1000], host: lightroom, max: [6, 6000, 6000], min: [200, 200] },
            { tag: "no picture", image: [0, 0], max: [1, 0, 0], min: [0, 0] }
        ];
    }

    function test_limits(row): void {
        const limits = Limits.limitsOf(Qt.size(...row.image), row.host ?? alone);
        compare([limits.maxScale, limits.maxWidth, limits.maxHeight], row.max);
        compare([limits.minScale, limits.minWidth, limits.minHeight], [0.2, ...row.min]);
    }

    function test_applied_data(): var {
        return [
            { tag: "nothing known", params: {}, expect: [1, 3000, 2000, "scale"] },
            { tag: "scale leads", params: { scale: 2, width: 10, height: 10 }, expect: [2, 6000, 4000, "scale"] },
            { tag: "scale too large", params: { scale: 7, mode: "scale" }, expect: [6, 18000, 12000, "scale"] },
            { tag: "scale too small", params: { scale: 0, mode: "scale" }, expect: [0.2, 600, 400, "scale"] },
            { tag: "width leads", params: { scale: 5, width: 4500, height: 1, mode: "width" }, expect: [1.5, 4500, 3000, "width"] },
            { tag: "width too large", params: { width: 32000, mode: "width" }, expect: [6, 18000, 12000, "width"] },
            { tag: "width too small", params: { width: 300, mode: "width" }, expect: [0.2, 300, 400, "width"] },
            { tag: "height leads", params: { height: 5000, mode: "height" }, expect: [2.5, 7500, 5000, "height"] },
            { tag: "not numbers", params: { scale: "wide", resolution: -1 }, expect: [1, 3000, 2000, "scale"] }
        ];
    }

    function test_applied(row): void {
        const size = Limits.applied(row.params, picture, Limits.limitsOf(picture, alone));
        compare(plain(size), row.expect);
        compare([size.resolution, size.resolutionUnit], [72, Limits.Pixels]);
        verify(!Limits.differs(Limits.paramsOf(size), Limits.paramsOf(Limits.applied(size, picture, Limits.limitsOf(picture, alone)))), "applied twice");
    }

    function test_same_side_again_does_not_drift(): void {
        const size = { scale: 1 / 3, width: 1000.0000001, height: 666.6, mode: "scale", resolution: 72, resolutionUnit: 1 };
        compare(Limits.withWidth(size, picture, size.width), Object.assign({}, size, { mode: "width" }));
        compare(Limits.withHeight(size, picture, size.height), Object.assign({}, size, { mode: "height" }));
    }
}
