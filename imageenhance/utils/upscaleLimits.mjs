// The size of an upscaled picture: its limits, its three coupled forms, and the units it is shown in. `image` is the
// cropped picture in pixels, `size` a map of scale, width, height, mode, resolution and resolutionUnit. A resolution
// counts pixels per unit.

// TImageSettings.ResolutionUnit
export const Pixels = 1;
export const Inches = 2;
export const Centimeters = 3;

const SCALE_MAX = 6;
const LIGHTROOM_PIXELS = 512000000;
const AUTOMATE_SIDE = 30000;
const RESOLUTION = 72;
const CM_PER_INCH = 2.54;
const SCALE_WRITTEN_MIN = 0.0001;

const isEmpty = image => !(image.width > 0 && image.height > 0);
const numberOr = (value, fallback) => Number.isFinite(Number(value ?? NaN)) ? Number(value) : fallback;
const clamp = (value, low, high) => Math.min(Math.max(value, low), high);
// A product that is a whole number but for its last bits is that number.
const whole = value => Math.floor(value + 1e-6);
const alike = (a, b) => Math.abs(a - b) <= 1e-6 * Math.max(1, Math.abs(a), Math.abs(b));

export function croppedSize(original, crop) {
    return { width: Math.round(original.width * crop.width), height: Math.round(original.height * crop.height) };
}

// How far the host and the longest side allowed let the picture grow.
export function rawImageScale(image, host) {
    if (isEmpty(image))
        return 1;
    if (host.pluginDisplayName.includes("Lightroom"))
        return Math.sqrt(LIGHTROOM_PIXELS / (image.width * image.height));
    return (host.psAutomate ? AUTOMATE_SIDE : host.pixelMax) / Math.max(image.width, image.height);
}

// `host` holds pluginDisplayName (empty outside plug-in mode), psAutomate, scaleMin and pixelMax.
export function limitsOf(image, host) {
    const minScale = host.scaleMin;
    const maxScale = Math.min(SCALE_MAX, rawImageScale(image, host));
    return {
        minScale,
        maxScale,
        minWidth: whole(image.width * minScale),
        minHeight: whole(image.height * minScale),
        maxWidth: whole(image.width * maxScale),
        maxHeight: whole(image.height * maxScale)
    };
}

// The size that a filter's params stand for. What its mode names stays, the other two follow the picture.
export function applied(params, image, limits) {
    const resolution = numberOr(params.resolution, RESOLUTION);
    const size = {
        scale: clamp(numberOr(params.scale, 1), limits.minScale, limits.maxScale),
        width: Math.min(numberOr(params.width, image.width), limits.maxWidth),
        height: Math.min(numberOr(params.height, image.height), limits.maxHeight),
        mode: params.mode ?? "scale",
        resolution: resolution > 0 ? resolution : RESOLUTION,
        resolutionUnit: numberOr(params.resolutionUnit, Pixels)
    };
    if (size.mode === "width") {
        size.scale = Math.max(limits.minScale, size.width / image.width);
        size.height = image.height * size.scale;
    } else if (size.mode === "height") {
        size.scale = Math.max(limits.minScale, size.height / image.height);
        size.width = image.width * size.scale;
    } else {
        size.width = image.width * size.scale;
        size.height = image.height * size.scale;
    }
    return size;
}

export function withScale(size, image, scale) {
    return Object.assign({}, size, { scale, width: image.width * scale, height: image.height * scale, mode: "scale" });
}

// The same width again changes the mode alone: computing it anew would let the numbers drift.
export function withWidth(size, image, width) {
    const scale = width / image.width;
    const sides = width === size.width ? {} : { scale, width, height: image.height * scale };
    return Object.assign({}, size, sides, { mode: "width" });
}

export function withHeight(size, image, height) {
    const scale = height / image.height;
    const sides = height === size.height ? {} : { scale, height, width: image.width * scale };
    return Object.assign({}, size, sides, { mode: "height" });
}

// The density follows from inches to centimetres and back; a change from or to pixels leaves it.
export function withUnit(size, resolutionUnit) {
    const from = size.resolutionUnit;
    let resolution = size.resolution;
    if (from === Centimeters && resolutionUnit === Inches)
        resolution *= CM_PER_INCH;
    else if (from === Inches && resolutionUnit === Centimeters)
        resolution /= CM_PER_INCH;
    return Object.assign({}, size, { resolution, resolutionUnit });
}

export function paramsOf(size) {
    return Object.assign({}, size, {
        scale: Math.max(SCALE_WRITTEN_MIN, size.scale),
        width: Math.max(1, size.width),
        height: Math.max(1, size.height)
    });
}

// Whether writing `next` would change more than the last bits of a number.
export function differs(params, next) {
    return Object.keys(next).some(key => {
        const value = next[key];
        return typeof value === "number" ? !alike(numberOr(params[key], NaN), value) : params[key] !== value;
    });
}

export const shown = (pixels, size) => size.resolutionUnit === Pixels ? pixels : pixels / size.resolution;
export const pixelsOf = (value, size) => size.resolutionUnit === Pixels ? value : value * size.resolution;
