// Why Autopilot added a filter, in a sentence: what was measured, and from where on it acts. The analysis gives
// `{ measured, threshold, text }` for each category (engine/analysis/Thresholds.h has the units).

// The same in every locale, with no more digits than mean something.
export function number(value) {
    const size = Math.abs(value);
    return String(Number(value.toFixed(size >= 100 ? 0 : size >= 10 ? 1 : 2)));
}

const noise = {
    figure: () => qsTr("Noise measured: %1 of 255"),
    shown: number
};
// Natural logarithm of a channel over green.
const cast = {
    figure: () => qsTr("Color cast measured: %1 %"),
    limit: () => qsTr("from %1 % on"),
    shown: value => number(Math.round((Math.exp(value) - 1) * 100))
};
const quantities = {
    "Denoise": noise,
    "RAW": noise,
    "Sharpen": {
        figure: () => qsTr("Blur measured: %1 pixels"),
        shown: number
    },
    "Enhance": {
        figure: () => qsTr("Size measured: %1 megapixels"),
        limit: () => qsTr("enlarged up to %1"),
        shown: value => number(value / 1e6),
        below: true
    },
    // The median brightness, of 1.
    "Exposure Adjust": {
        figure: () => qsTr("Brightness measured: %1 %"),
        limit: below => below ? qsTr("up to %1 %") : qsTr("from %1 % on"),
        shown: value => number(value * 100),
        below: threshold => threshold < 0.5
    },
    "White Balance Adjust": cast
};

export function sentence(category, reason) {
    const text = reason?.text ?? "";
    const quantity = quantities[category];
    const [measured, threshold] = [reason?.measured, reason?.threshold];
    if (!quantity || !Number.isFinite(measured) || !Number.isFinite(threshold))
        return text;
    const below = typeof quantity.below === "function" ? quantity.below(threshold) : Boolean(quantity.below);
    const figure = quantity.figure().arg(quantity.shown(measured));
    // What is done for another reason tells that: the preferences ask for a size, say.
    if (below ? measured > threshold : measured < threshold)
        return text === "" ? figure : figure + ". " + text;
    const limit = quantity.limit?.(below) ?? (below ? qsTr("up to %1") : qsTr("from %1 on"));
    return figure + ", " + limit.arg(quantity.shown(threshold));
}
