// The steps of an Autopilot run, from what the engine reports while it looks at a picture.

export const Step = { NoFiles: 0, Loading: 1, Subject: 2, Faces: 3, Params: 4, Final: 5, Done: 6, AddFilter: 7 };
export const Status = { NotStarted: 0, InProgress: 1, Complete: 2, Skipped: 3 };

const words = ["noFiles", "loading", "subject", "faces", "params", "final", "done"];
const ofReports = {
    init: Step.Loading, subject: Step.Subject, strokes: Step.Subject, faces: Step.Faces, params: Step.Params,
    final: Step.Final, done: Step.Done
};

// The numbers of steps that are given as numbers or words; what is neither is left out.
export function numbers(list) {
    return Array.from(list).map(entry => typeof entry === "number" ? entry : words.indexOf(entry))
        .filter(step => Number.isInteger(step) && step >= Step.NoFiles && step <= Step.AddFilter);
}

// Where the run is; undefined when the problems do not say.
export function current(problems, imageOpen, loading) {
    if (!imageOpen)
        return Step.NoFiles;
    if (loading || problems.currentStep === "init")
        return Step.Loading;
    if (Object.keys(problems).length === 0)
        return Step.NoFiles;
    return ofReports[problems.currentStep];
}

export function status(step, now, skipped) {
    if (skipped)
        return Status.Skipped;
    if (step > now)
        return Status.NotStarted;
    return step < now ? Status.Complete : Status.InProgress;
}

// Subjects and faces are looked for by engines that can. One that can says so by a report of the step or by what it
// found; a run that passed the step in silence has found nothing out.
export function provenBy(problems) {
    const proven = [];
    if (ofReports[problems.currentStep] === Step.Subject || problems.existSalient)
        proven.push(Step.Subject);
    if (ofReports[problems.currentStep] === Step.Faces || faceCount(problems) > 0)
        proven.push(Step.Faces);
    return proven;
}

export function faceCount(problems) {
    return problems.autoFaces?.length || problems.faceCount || 0;
}

// The levels themselves arrive after the last step: these are read from the raw values.
export function noiseWord(problems) {
    const noise = problems.ap_params?.noise ?? 0;
    return noise > 0.5 ? "severe" : noise > 0.33 ? "high" : noise > 0.09 ? "medium" : "low";
}

export function blurWord(problems) {
    const params = problems.ap_params ?? {};
    const blur = (problems.existSalient ? params.blur_salient : params.blur) ?? 0;
    return blur > 0.37 ? "high" : blur > 0.22 ? "medium" : "low";
}
