// What of an image's filters goes into a preset: nothing that belongs to that one image.

// Categories that no preset has.
export const bannedFilters = ["RAW", "Inpaint"];

const OF_ONE_IMAGE = ["applyAutopilotOnceCalculated", "autoPilot", "autoPilotSettings", "blur_level", "justSaved", "noise_level"];
const FACES = ["highConfidenceFaces", "lowConfidenceFaces", "selectedFaces"];
const SIZES = ["height", "width", "scale"];

// Lists of the native side are no arrays.
const isList = value => Array.isArray(value) || (value !== null && typeof value === "object" && typeof value.length === "number");
const isMap = value => value !== null && typeof value === "object" && !isList(value);

const merged = (map, entries) => Object.assign({}, map, entries);

function without(map, keys) {
    const rest = merged(map);
    keys.forEach(key => delete rest[key]);
    return rest;
}

// Of a filter's name: "Denoise2" is a "Denoise".
export function categoryOf(name, controls) {
    return controls?.[name]?.category || name.replace(/\d+$/, "");
}

// Whether there is a map of filters and an order at all.
export function hasFilters(preset) {
    return isMap(preset?.controls) && isList(preset.filterOrder);
}

// A map of filters in an order, each with a category: what a damaged file doesn't have.
export function isSound(preset) {
    return hasFilters(preset)
        && Array.from(preset.filterOrder).every(name => isMap(preset.controls[name]) && Boolean(preset.controls[name].category));
}

function reducedFilter(category, filter) {
    const subject = isMap(filter.subjectSettings) ? filter.subjectSettings : {};
    const anySubject = subject.model === "none";
    let subjectSettings = anySubject ? merged(subject, { model: "All" }) : subject;
    let params = without(isMap(filter.params) ? filter.params : {}, ["locked"]);
    let modified = anySubject;
    if (category === "Text Recovery") {
        const whole = params.strokes?.length === 1 && params.strokes[0]?.mode === "fill";
        modified = modified || !whole;
        if (!whole)
            params = merged(params, { strokes: [{ mode: "fill" }] });
    } else if (category === "Face Recovery") {
        params = without(params, FACES);
        modified = true;
    } else if (category === "Enhance") {
        params = without(params, SIZES.filter(size => size !== params.mode).concat("updated", "useNeuralEngine"));
    } else if (subject.strokes?.length > 0) {
        subjectSettings = merged(subjectSettings, { strokes: [] });
        modified = true;
    }
    return { filter: merged(filter, { params, subjectSettings }), modified };
}

// The preset in the form in which it is stored, and whether that says less than what it was made from. The preset that
// is given stays as it is.
export function reduced(preset) {
    const given = without(isMap(preset.controls) ? preset.controls : {}, OF_ONE_IMAGE);
    const isBanned = name => bannedFilters.includes(categoryOf(name, given));
    const controls = {};
    let modified = false;
    for (const [name, filter] of Object.entries(given)) {
        if (isBanned(name))
            continue;
        if (!isMap(filter)) {
            controls[name] = filter;
            continue;
        }
        const kept = reducedFilter(categoryOf(name, given), filter);
        controls[name] = kept.filter;
        modified = modified || kept.modified;
    }
    const filterOrder = (isList(preset.filterOrder) ? Array.from(preset.filterOrder) : []).filter(name => !isBanned(name));
    return { preset: merged(preset, { controls, filterOrder }), modified };
}

// The part of the picture that a reduced filter works on; empty where nothing needs to be said.
export function partOf(category, filter) {
    if (category === "Text Recovery")
        return "All";
    const model = filter?.subjectSettings?.model ?? "";
    return model === "All" || model === "none" ? "" : model;
}

// One text for equal contents, however their keys are ordered and numbers that no file can hold are written.
function canonical(value) {
    if (isList(value))
        return Array.from(value, canonical);
    if (!isMap(value))
        return value ?? null;
    return Object.keys(value).sort().map(key => [key, canonical(value[key])]);
}

export function sameContent(one, other) {
    return JSON.stringify(canonical(one)) === JSON.stringify(canonical(other));
}
