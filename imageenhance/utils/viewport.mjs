// The geometry of the viewport, without a screen. Rectangles are plain objects or QML rects with x, y, width and
// height. `crop` is in fractions of the image, `actual` the image's size in pixels as enlarged, `rotation` in radians.

const clamp = (value, low, high) => Math.min(Math.max(value, low), high);

export const BREAKPOINTS = [0.06, 0.12, 0.25, 0.33, 0.5, 0.67, 1, 2, 4, 8];
export const ZOOM_MAX = 8;

// What the flickable shows, in fractions of its content; a position that is not a number is centred.
export function visibleArea(xPosition, yPosition, widthRatio, heightRatio) {
    return {
        x: Number.isNaN(xPosition) ? (1 - widthRatio) / 2 : xPosition,
        y: Number.isNaN(yPosition) ? (1 - heightRatio) / 2 : yPosition,
        width: widthRatio,
        height: heightRatio
    };
}

export function roi(visible, actual) {
    return {
        x: visible.x * actual.width,
        y: visible.y * actual.height,
        width: visible.width * actual.width,
        height: visible.height * actual.height
    };
}

// The upright rectangle of whole pixels, in the uncropped and unrotated image, that holds what is visible.
export function boundingRect(visible, actual, crop, rotation) {
    const x = (crop.x + visible.x * crop.width) * actual.width;
    const y = (crop.y + visible.y * crop.height) * actual.height;
    const width = visible.width * crop.width * actual.width;
    const height = visible.height * crop.height * actual.height;
    const centre = {
        x: (crop.x + crop.width / 2) * actual.width,
        y: (crop.y + crop.height / 2) * actual.height
    };
    const corners = [[x, y], [x + width, y], [x, y + height], [x + width, y + height]].map(([cornerX, cornerY]) => {
        if (rotation === 0)
            return { x: cornerX, y: cornerY };
        const dx = cornerX - centre.x;
        const dy = centre.y - cornerY;
        const distance = Math.hypot(dx, dy);
        const angle = Math.atan2(dy, dx) + rotation;
        return { x: centre.x + Math.cos(angle) * distance, y: centre.y - Math.sin(angle) * distance };
    });
    const left = Math.min(...corners.map(corner => corner.x));
    const top = Math.min(...corners.map(corner => corner.y));
    const right = Math.max(...corners.map(corner => corner.x));
    const bottom = Math.max(...corners.map(corner => corner.y));

    const bound = {
        x: Math.floor(Math.max(0, left)),
        y: Math.floor(Math.max(0, top)),
        width: Math.ceil(Math.min(right - left, actual.width)),
        height: Math.ceil(Math.min(bottom - top, actual.height))
    };
    bound.x -= Math.max(0, bound.x + bound.width - actual.width);
    bound.y -= Math.max(0, bound.y + bound.height - actual.height);
    return bound;
}

// An upright rectangle moved and clipped so that it lies in an image of this size.
export function movedInside(bounds, size) {
    const width = Math.min(bounds.width, size.width);
    const height = Math.min(bounds.height, size.height);
    return { x: clamp(bounds.x, 0, size.width - width), y: clamp(bounds.y, 0, size.height - height), width, height };
}

// The zoom at which the cropped image fills the view. While cropping it also fits turned by a quarter.
export function fitZoom(imageSize, crop, view, pixelRatio, scale, cropping) {
    const width = imageSize.width * crop.width;
    const height = imageSize.height * crop.height;
    if (!(width > 0) || !(height > 0))
        return 1;
    const upright = Math.min(view.width / width, view.height / height);
    if (cropping)
        return Math.min(upright, view.width / height, view.height / width) * pixelRatio;
    return upright * pixelRatio / scale;
}

export function percent(zoom) {
    return Number.isFinite(zoom) ? Math.round(Math.round(zoom * 100) / 100 * 100) : 0;
}

// The entries of the zoom list, ascending: the breakpoints from the slider's least value on, and the fit.
export function zoomList(fitScale) {
    const least = Math.min(1, fitScale);
    const fit = fitScale > 0 ? fitScale : 1;
    return BREAKPOINTS.filter(value => value >= least).map(value => ({ value, fit: false })).concat({ value: fit, fit: true })
        .sort((a, b) => a.value - b.value);
}

// The next entry above or below; undefined outside the list.
export const zoomAbove = (list, zoom) => list.find(entry => entry.value > zoom)?.value;
export const zoomBelow = (list, zoom) => [...list].reverse().find(entry => entry.value < zoom)?.value;

// Wheel turns add up; a whole step of 120 zooms by a twentieth and starts the sum anew.
export function wheel(sum, delta, zoom) {
    const total = sum + delta;
    if (total >= 120)
        return { sum: 0, zoom: zoom * 1.05 };
    if (total <= -120)
        return { sum: 0, zoom: zoom * 0.95 };
    return { sum: total, zoom };
}

export function pinchZoom(start, pinchScale, fit) {
    return clamp(Math.round(clamp(start * pinchScale, fit, ZOOM_MAX) * 100) / 100, fit, ZOOM_MAX);
}

// The zoom that keeps the visible part when the output is enlarged by another factor.
export function zoomAfterScale(zoom, previousScale, scale, least) {
    return clamp(zoom / (scale / previousScale), least, ZOOM_MAX);
}

// The centre of what is seen, kept when the visible area changes its size. Undefined where nothing was seen.
export function recentred(before, after) {
    if (!(before.width > 0) || !(before.height > 0))
        return undefined;
    return {
        x: clamp(before.x + before.width / 2 - after.width / 2, 0, Math.max(0, 1 - after.width)),
        y: clamp(before.y + before.height / 2 - after.height / 2, 0, Math.max(0, 1 - after.height))
    };
}

// Where a move ends: within 0 and the largest position; undefined when a bound is not a number.
export function moveTarget(x, y, maxX, maxY, contentWidth, contentHeight, actual, scaled) {
    const targetX = clamp(scaled ? x * contentWidth / actual.width : x, 0, Math.max(0, maxX));
    const targetY = clamp(scaled ? y * contentHeight / actual.height : y, 0, Math.max(0, maxY));
    return Number.isNaN(targetX) || Number.isNaN(targetY) ? undefined : { x: targetX, y: targetY };
}

// The area of the navigator that the cropped image takes.
export function navigatorRect(cropped, width, maxHeight) {
    const ratio = cropped.height / cropped.width;
    if (!(ratio > 0))
        return { x: 0, y: 0, width: 0, height: 0 };
    if (ratio > maxHeight / width)
        return { x: 0, y: 0, width: maxHeight / ratio, height: maxHeight };
    return { x: 0, y: 0, width, height: width * ratio };
}

// The frame of what is seen in the navigator: at least `least` on a side, inside `fill`.
export function panRect(visible, fill, least) {
    const width = clamp(visible.width * fill.width, Math.min(least, fill.width), fill.width);
    const height = clamp(visible.height * fill.height, Math.min(least, fill.height), fill.height);
    return {
        x: fill.x + clamp(visible.x * fill.width, 0, fill.width - width),
        y: fill.y + clamp(visible.y * fill.height, 0, fill.height - height),
        width,
        height
    };
}

// A point of the mouse area in pixels of the input image; (-1, -1) outside.
export function mapPoint(x, y, area, actual, scale) {
    if (x < 0 || y < 0 || x > area.width || y > area.height || !(area.width > 0) || !(area.height > 0))
        return { x: -1, y: -1 };
    return { x: x / area.width * actual.width / scale, y: y / area.height * actual.height / scale };
}
