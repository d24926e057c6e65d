// The models that filters offer, and the keys of a filter's parameters that belong to each: every model keeps its
// own strengths. `fallback` is what a missing strength reads as.

const denoiseModels = {
    "Low Light Beta": { strength: "param1_normalv2", deblur: "param2_normalv2", fallback: 0 },
    "Severe Noise Beta": { strength: "param1_strongv2", deblur: "param2_strongv2", fallback: 0 },
    "Severe Noise": { strength: "param1", deblur: "param2", fallback: 0.01 }
};
export const DENOISE_DEFAULT = "Low Light Beta";
export const denoiseKeys = model => denoiseModels[model] ?? denoiseModels[DENOISE_DEFAULT];

export const RAW_DEFAULT = "RAW Native";
export const RAW_STRONG = "RAW Standard";
export const RAW_LINEAR = "Linear RAW"; // Autopilot's choice alone: for files that the others don't support
export function rawKeys(model) {
    const suffix = model === RAW_STRONG ? "_standard" : "_native";
    return { strength: "param1" + suffix, deblur: "param2" + suffix, grain: "param3_standard", fallback: 0.01 };
}

// The kinds of sharpening. Two share a model; the one without a model is read from older settings and never chosen.
const sharpenKinds = {
    standard: { model: "Sharpen Standard v2", isLens: false, blur: "std_blur", noise: "std_noise" },
    strong: { model: "Sharpen Strong", isLens: false, blur: "stg_blur", noise: "stg_noise" },
    lensblur: { model: "Sharpen Standard", isLens: true, blur: "slens_blur", noise: "slens_noise" },
    motionblur: { model: "Sharpen Standard", isLens: false, blur: "smot_blur", noise: "smot_noise" },
    smallblur: { model: "", isLens: false, blur: "smb_blur", noise: "smb_noise" }
};
export const SHARPEN_FALLBACK = 0.01;
export const sharpenKind = name => sharpenKinds[name];

export function sharpenKindOf(model, isLens) {
    switch (model) {
    case "Sharpen Motionblur":
        return "smallblur";
    case "Sharpen Strong":
        return "strong";
    case "Sharpen Standard v2":
    case "":
        return "standard";
    default:
        return model === "Sharpen Standard" && isLens ? "lensblur" : "motionblur";
    }
}

// The kind that Autopilot means by a model; empty for a model that no kind writes.
export function suggestedSharpenKind(model, isLens) {
    const kind = sharpenKindOf(model, isLens);
    return sharpenKinds[kind].model === model ? kind : "";
}

// What a choice of the kind writes. The network's first parameter is the noise and its second one the blur.
export function sharpenChoice(name, params) {
    const kind = sharpenKinds[name];
    return {
        model: kind.model,
        param1: params[kind.noise] ?? SHARPEN_FALLBACK,
        param2: params[kind.blur] ?? SHARPEN_FALLBACK,
        isLens: kind.isLens
    };
}

// The entries, each with a `model`, whose model the catalogue lists.
export const offered = (entries, names) => entries.filter(entry => (names ?? []).includes(entry.model));
