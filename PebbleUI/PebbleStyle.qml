pragma Singleton

import QtQuick

// Everything a document needs to look like the rest: colours by role, fonts, sizes, times, icon paths,
// and helpers for rich text. The program sets `darkMode` and `tooltipPlane`; all else is for reading.
QtObject {
    id: _top

    property bool darkMode: true

    // The plane over the main window that tooltips appear in; null until the window has one.
    property Item tooltipPlane: null

    readonly property PbColors color: PbColors { darkMode: _top.darkMode }
    readonly property PbFonts font: PbFonts {}
    readonly property PbIcons icon: PbIcons {}
    readonly property PbBrand brand: PbBrand {}
    readonly property PbMetrics size: PbMetrics { darkMode: _top.darkMode }
    readonly property PbTimes time: PbTimes {}

    // Points are counted at 72 to the inch on macOS and at 96 elsewhere: the same number would look larger.
    function pointSize(size: real): real {
        return Qt.platform.os === "osx" ? size : size * 0.7;
    }

    // The helpers below write rich text round `text` as it stands. Text from outside goes through
    // `escaped` first.
    function escaped(text: string): string {
        return text.replace(/&/g, "&amp;").replace(/</g, "&lt;").replace(/>/g, "&gt;").replace(/"/g, "&quot;");
    }

    function richTextColor(text: string, color: color): string {
        return `<font color="${color}">${text}</font>`;
    }

    function bold(text: string, color = _top.color.almostWhite): string {
        return `<b>${richTextColor(text, color)}</b>`;
    }

    function colorWithOpacity(color: color, opacity: real): color {
        return Qt.rgba(color.r, color.g, color.b, opacity);
    }

    function hyperlink(text: string, url: string, color: color, underline = true): string {
        return `<a href="${url}" style="color: ${color}; text-decoration: ${underline ? "underline" : "none"};">${text}</a>`;
    }

    function labelWithBackground(text: string, backgroundColor = "#FFD700", textColor = "#000000",
                                 padding = "2px 6px", borderRadius = "8px", fontSize = "14px"): string {
        return `<span style="background-color: ${backgroundColor}; color: ${textColor}; padding: ${padding}; `
            + `border-radius: ${borderRadius}; font-size: ${fontSize};">${text}</span>`;
    }
}
