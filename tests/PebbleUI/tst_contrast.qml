import QtQuick
import QtTest
import PebbleUI

// Text against what it stands on, at 4.5 to 1 or better, and borders that tell something at 3 to 1, in both
// themes; disabled text aside. No text stands in a role that misses it: see PebbleUI/docs/contrast.md.
TestCase {
    id: _top
    name: "Contrast"

    readonly property real least: 4.5

    function luminance(color: color): real {
        const linear = [color.r, color.g, color.b].map(v => v <= 0.04045 ? v / 12.92 : Math.pow((v + 0.055) / 1.055, 2.4));
        return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2];
    }

    function contrast(first: color, second: color): real {
        const [a, b] = [luminance(first), luminance(second)].sort((x, y) => x - y);
        return (b + 0.05) / (a + 0.05);
    }

    function told(what: string, on: string, ratio: real): string {
        return `${what}, ${on}, ${PebbleStyle.darkMode ? "dark" : "light"}: ${ratio.toFixed(2)}`;
    }

    function cleanup(): void {
        PebbleStyle.darkMode = true;
    }

    PbText { id: _text; text: "A link" }

    // Fields tell of an error by their border, primeRed, which is drawn twice as wide then.
    function test_text(): void {
        for (const dark of [true, false]) {
            PebbleStyle.darkMode = dark;
            for (const [text, on] of [["textLight", "pageBkg"], ["textLight", "panelBkg"], ["textLight", "darkerGray"],
                                      ["textQuiet", "darkerGray"], ["lightGray", "panelBkg"],
                                      ["lighterGray", "darkestGray"], ["textLight", "noteBkg"], ["alwaysDark", "primeBlue"],
                                      ["textWarning", "panelBkg"], ["textBlue", "panelBkg"], ["textBlue", "darkerGray"],
                                      ["textError", "pageBkg"], ["title", "panelBkg"],
                                      ["link", "panelBkg"], ["link", "pageBkg"], ["primeRed", "panelBkg"]]) {
                const color = text === "link" ? _text.linkColor : PebbleStyle.color[text];
                const ratio = contrast(color, PebbleStyle.color[on]);
                verify(ratio >= (text === "primeRed" ? 3 : least), told(text, on, ratio));
            }
        }
    }

    function test_buttons(): void {
        for (const dark of [true, false]) {
            PebbleStyle.darkMode = dark;
            for (const type of ["primary", "secondary", "tertiary", "duotone", "warning", "destructive"])
                for (const state of ["normal", "hovered", "selected"])
                    for (const part of ["label", "icon"]) {
                        const style = PbButtonStyles[type];
                        const own = style.background[state];
                        const on = own.a === 0 ? PebbleStyle.color.panelBkg : own;
                        const ratio = contrast(style[part][state], on);
                        verify(ratio >= least, told(`${type} ${part}`, state, ratio));
                    }
        }
    }
}
