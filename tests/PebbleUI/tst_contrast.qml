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

    function cleanup(): void {
        PebbleStyle.darkMode = true;
    }

    function test_text_data(): var {
        const rows = [];
        for (const dark of [true, false])
            for (const [text, on] of [["textLight", "pageBkg"], ["textLight", "panelBkg"], ["textLight", "darkerGray"],
                                      ["textQuiet", "darkerGray"], ["lightGray", "panelBkg"],
                                      ["lighterGray", "darkestGray"], ["textLight", "noteBkg"], ["alwaysDark", "primeBlue"],
                                      ["textWarning", "panelBkg"], ["textError", "pageBkg"], ["title", "panelBkg"],
                                      ["link", "panelBkg"], ["link", "pageBkg"], ["primeRed", "panelBkg"]])
                rows.push({ tag: `${text} on ${on}, ${dark ? "dark" : "light"}`, dark: dark, text: text, on: on });
        return rows;
    }

    PbText { id: _text; text: "A link" }

    // Fields tell of an error by their border, primeRed, which is drawn twice as wide then.
    function test_text(row: var): void {
        PebbleStyle.darkMode = row.dark;
        const color = row.text === "link" ? _text.linkColor : PebbleStyle.color[row.text];
        const ratio = contrast(color, PebbleStyle.color[row.on]);
        verify(ratio >= (row.text === "primeRed" ? 3 : least), ratio.toFixed(2));
    }

    function test_buttons_data(): var {
        const rows = [];
        for (const dark of [true, false])
            for (const type of ["primary", "secondary", "tertiary", "duotone", "warning", "destructive"])
                for (const state of ["normal", "hovered", "selected"])
                    rows.push({ tag: `${type} ${state}, ${dark ? "dark" : "light"}`, dark: dark, type: type, state: state });
        return rows;
    }

    function test_buttons(row: var): void {
        PebbleStyle.darkMode = row.dark;
        const style = PbButtonStyles[row.type];
        const own = style.background[row.state];
        const on = own.a === 0 ? PebbleStyle.color.panelBkg : own;
        for (const part of ["label", "icon"]) {
            const ratio = contrast(style[part][row.state], on);
            verify(ratio >= least, `${part} ${ratio.toFixed(2)}`);
        }
    }
}
