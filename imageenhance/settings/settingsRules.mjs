// What a stored setting may hold, where its type alone does not say. Whatever else is found in the store, put there by
// another version or by damage, gives way to `fallback`.

const oneOf = (...values) => ({ fallback: values[0], accepts: value => values.includes(value) });
const isText = value => typeof value === "string";
// What comes out of the store is a list of the native side's, which Array.isArray does not know.
const isList = value => typeof value === "object" && value !== null && Number.isInteger(value.length);
// The store gives back a number in a property of any type as text, and a list of one text as that text.
const within = (fallback, low, high) => ({
    fallback,
    read: value => isText(value) && value !== "" ? Number(value) : value,
    accepts: value => Number.isFinite(value) && value >= low && value <= high
});
const texts = (...fallback) => ({
    fallback,
    list: true,
    read: value => isText(value) && value !== "" ? [value] : value,
    accepts: value => isList(value) && Array.from(value).every(isText)
});

const strength = within(3, 0, 4); // SliderStrength

export const RULES = {
    windowVisibility: oneOf(2, 4, 5), // Window.Windowed, Maximized, FullScreen
    colorScheme: oneOf("auto", "dark", "light"),
    recentFiles: texts(),
    lastViewMode: within(1, 0, 2),
    splitViewXPos: within(0.5, 0, 1),
    deviceId: within(-2, -2, 1024),

    autopilotSubjectType: oneOf("Subject", "All", "Background", "Portrait", "Landscape", "Sky", "none", "all"),
    autopilotFaceDetect: oneOf("auto", "all", "subject", "none"),
    faceParts: texts("hair", "necks"),
    autopilotFaceStrength: within(80, 1, 100),
    autopilotSharpenBlurs: texts("medium", "high"),
    autopilotSharpenStrength: strength,
    autopilotUpscalingType: oneOf("auto", "none", "scale", "width", "height", "longest", "shortest"),
    autopilotUpscalingFactor: within(2, 0.001, 1e6),
    autopilotUpscalingParam1Strength: strength,
    autopilotUpscalingParam2Strength: strength,
    autopilotOutputResolutionType: oneOf("original", "custom"),
    autopilotDefaultResolution: within(-1, -1, 1e6),
    autopilotDenoiseLevels: texts("medium", "high", "severe"),
    autopilotDenoiseStrength: strength,
    autopilotDenoiseRawLevels: texts("low", "medium", "high", "severe"),
    autopilotDenoiseRawStrength: strength,
    autopilotConflictResolutionPref: oneOf("auto", "denoise", "sharpen"),
    autopilotNonRAWExposureStrength: within(25, -25, 75),
    autopilotRAWExposureStrength: within(8, -25, 75),
    autopilotTemperatureValue: within(50, 1, 100),
    autopilotOpacityValue: within(100, 1, 100),
    autopilotTextStrength: strength,

    maskOverlayOpacity: within(0.5, 0, 1),
    saveJpegQuality: within(95, 0, 100),
    savePngCompression: within(2, 0, 9),
    outputFolderList: {
        fallback: [{ text: "Original folder", value: "preserve" }, { text: "Browse...", value: "browse" }],
        accepts: value => isList(value) && value.length > 0 && Array.from(value).every(entry => isText(entry?.value) && isText(entry.text))
    }
};

// The keys of `settings` that hold what they may not, each with what is to stand there and whether that is worth a word.
// `stored(key)` is what the store itself has, undefined for an empty list: the store can't tell it from nothing, and
// the property keeps its default.
export function corrections(settings, stored) {
    const found = [];
    for (const [key, rule] of Object.entries(RULES)) {
        const value = rule.read ? rule.read(settings[key]) : settings[key];
        if (rule.list && stored(key) === undefined)
            found.push({ key, value: [], damaged: false });
        else if (!rule.accepts(value))
            found.push({ key, value: rule.fallback, damaged: true });
        else if (value !== settings[key])
            found.push({ key, value, damaged: false });
    }
    return found;
}
