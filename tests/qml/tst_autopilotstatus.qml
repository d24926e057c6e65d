import QtQuick
import QtTest
import imageenhance

// The steps of an Autopilot run: the ladder in a table, and a whole run of the real controller.
WindowParts {
    id: parts

    name: "AutopilotStatus"
    visible: true
    when: windowShown

    readonly property var given: ({ controls: parts.controls, engine: parts.engine, imageOpen: true, loading: false, loadingStatus: "", lensCorrectionEnabled: true, lensCorrected: OptionalBoolean.Unset })
    readonly property var all: ["loading", "subject", "faces", "params", "final"]

    Component {
        id: rules
        AutoPilotRules {}
    }
    Component {
        id: view
        AutoPilotStatus {
            width: 272
            collapsed: false
            imageOpen: parts.windowState.imageOpen
            loading: parts.windowState.isLoading
            loadingStatus: parts.reader.status
            lensCorrectionEnabled: parts.settings.lensCorrectionEnabled
            lensCorrected: OptionalBoolean.Unset
        }
    }

    function init(): void {
        parts.backends.scriptAnalyses([], {});
        parts.open(["/a.jpg", "/b.dng"]);
    }

    function report(problems: var): void {
        parts.engine.autoProblemsUpdated(parts.engine.inputImage.uid, problems);
    }

    // The states of the steps in order: - not started, > in progress, + complete, / skipped.
    function signs(of: QtObject): string {
        return of.steps.map(step => "->+/"[of.statusOf(step)]).join("");
    }

    function test_ladder_data(): var {
        return [
            { tag: "no image", set: { imageOpen: false, loading: true }, problems: { currentStep: "final" }, signs: "-----" },
            { tag: "loading", set: { loading: true, loadingStatus: "Reading" }, problems: { currentStep: "final" }, signs: ">----", text: [0, "Reading"] },
            { tag: "loading, no word", set: { loading: true }, problems: {}, signs: ">----", text: [0, "Loading image"] },
            { tag: "begins", problems: { currentStep: "init" }, signs: ">----" },
            { tag: "nothing reported", problems: {}, signs: "-----" },
            { tag: "subject", problems: { currentStep: "subject" }, signs: "+>---", text: [1, "Detecting subject"] },
            { tag: "strokes", problems: { currentStep: "strokes" }, signs: "+>---" },
            { tag: "faces, a subject found", problems: { currentStep: "faces", existSalient: true }, signs: "++>--", text: [1, "Detected subject"] },
            { tag: "no subject found", problems: { currentStep: "faces" }, signs: "++>--", text: [1, "No subject detected"] },
            { tag: "no face", problems: { currentStep: "params", faceCount: 0 }, signs: "+++>-", text: [2, "Detected 0 faces"] },
            { tag: "one face", problems: { currentStep: "params", faceCount: 1 }, signs: "+++>-", text: [2, "Detected 1 face"] },
            { tag: "chosen faces go first", problems: { currentStep: "params", faceCount: 5, autoFaces: [1, 2] }, signs: "+++>-", text: [2, "Detected 2 faces"] },
            { tag: "faces not wanted", problems: { currentStep: "params", faceCount: -1 }, signs: "++/>-", text: [2, "Skipped"] },
            { tag: "last step", problems: { currentStep: "final", ap_params: { noise: 0.34, blur: 0.23 } }, signs: "++++>", text: [3, "Detected high noise and medium blur"] },
            { tag: "severe noise", problems: { currentStep: "final", ap_params: { noise: 0.51, blur: 0.38 } }, signs: "++++>", text: [3, "Detected severe noise and high blur"] },
            { tag: "on the limits", problems: { currentStep: "final", ap_params: { noise: 0.09, blur: 0.22 } }, signs: "++++>", text: [3, "Detected low noise and low blur"] },
            { tag: "blur of the subject", problems: { currentStep: "final", existSalient: true, ap_params: { noise: 0.1, blur: 0.9, blur_salient: 0.1 } }, signs: "++++>", text: [3, "Detected medium noise and low blur"] },
            { tag: "done", problems: { currentStep: "done" }, signs: "+++++", text: [4, "Calculated auto-suggested values"] },
            { tag: "plain file", set: { lensCorrected: OptionalBoolean.True }, problems: { currentStep: "done" }, signs: "+++++", text: [0, "Image loaded"] },
            { tag: "corrected", raw: true, set: { lensCorrected: OptionalBoolean.True }, problems: { currentStep: "done" }, signs: "+++++", text: [0, "Image loaded and lens corrected"] },
            { tag: "not corrected", raw: true, set: { lensCorrected: OptionalBoolean.False }, problems: { currentStep: "done" }, signs: "+++++", text: [0, "Image loaded, no lens correction found"] },
            { tag: "not known", raw: true, problems: { currentStep: "done" }, signs: "+++++", text: [0, "Image loaded"] },
            { tag: "correction off", raw: true, set: { lensCorrected: OptionalBoolean.False, lensCorrectionEnabled: false }, problems: { currentStep: "done" }, signs: "+++++", text: [0, "Image loaded"] },
            { tag: "no subject wanted", subject: "none", problems: { currentStep: "params" }, signs: "+/+>-", text: [1, "Skipped"] }
        ];
    }

    function test_ladder(row): void {
        parts.controls.setCurrentIndex(row.raw ? 1 : 0);
        parts.settle();
        parts.controls.setActiveCategory("Denoise");
        parts.controls.setSubjectSettings("Denoise", { model: row.subject ?? "Subject" });
        const made = createTemporaryObject(rules, this, Object.assign({}, given, row.set));
        for (const step of ["subject", "faces"]) // an engine that looks for both
            report({ currentStep: step });
        made.setFilter(all);
        if (Object.keys(row.problems).length > 0)
            report(row.problems);
        compare(signs(made), row.signs);
        if (row.text)
            compare(made.textOf(made.steps[row.text[0]]), row.text[1]);
    }

    function test_steps_shown_data(): var {
        return [
            { tag: "words", filter: ["final", "params", "nonsense", "loading"], shown: [AutoPilotStatus.Loading, AutoPilotStatus.Params, AutoPilotStatus.Final] },
            { tag: "numbers", filter: [AutoPilotStatus.Final, AutoPilotStatus.Done, 99, -1], shown: [AutoPilotStatus.Final] },
            { tag: "what the engine never did", filter: all, shown: [AutoPilotStatus.Loading, AutoPilotStatus.Params, AutoPilotStatus.Final] },
            { tag: "as soon as it does", filter: all, reports: [{ currentStep: "faces" }], shown: [AutoPilotStatus.Loading, AutoPilotStatus.Faces, AutoPilotStatus.Params, AutoPilotStatus.Final] },
            { tag: "or has found one", filter: all, reports: [{ existSalient: true, faceCount: 0, currentStep: "done" }], shown: [AutoPilotStatus.Loading, AutoPilotStatus.Subject, AutoPilotStatus.Params, AutoPilotStatus.Final] }
        ];
    }

    function test_steps_shown(row): void {
        const made = createTemporaryObject(rules, this, given);
        made.setFilter(row.filter);
        for (const problems of row.reports ?? [])
            report(problems);
        compare(Array.from(made.steps), row.shown);
    }

    function test_reports_are_of_the_picture_shown(): void {
        const made = createTemporaryObject(rules, this, given);
        made.setFilter(all);
        report({ currentStep: "params", ap_params: { noise: 0.4 } });
        parts.engine.autoProblemsUpdated("/other.jpg#1", { currentStep: "done" });
        report({ currentStep: "final" });
        compare([signs(made), made.textOf(AutoPilotStatus.Params)], ["++>", "Detected high noise and low blur"], "merged");
        parts.backends.hold(["reads"]);
        parts.controls.setCurrentIndex(1);
        made.setFilter(all);
        report({ currentStep: "done" });
        compare(signs(made), "---", "of the picture that is left");
        parts.backends.hold([]);
        parts.settle();
        made.setFilter(all);
        compare(logged(() => {
            report({ noise_level: 2 });
            compare(made.currentStep, AutoPilotStatus.NoFiles);
        }), ["Could not determine current step! {\"noise_level\":2}"]);
    }

    // From a path to the answer, each step when the engine says so.
    function test_view_follows_a_run(): void {
        const steps = ["init", "faces", "params", "final"];
        const seen = createTemporaryObject(view, this, { controls: parts.controls, engine: parts.engine });
        const shown = () => items(seen, item => item instanceof AutoPilotStep).map(step => "->+/"[step.status]).join("");
        parts.backends.addFile("/new.jpg", 1000, 800);
        parts.backends.scriptAnalyses(steps, { faceCount: 3, ap_params: { noise: 0.2, blur: 0.3 } });
        parts.backends.hold(["reads"]);
        parts.controls.loadImages(["/new.jpg"]);
        seen.setFilter(all);
        tryVerify(() => shown() === ">--", 60000);
        parts.backends.hold([]);
        tryVerify(() => parts.backends.analyses().length > 0 && shown() === "---", 60000);
        for (const [count, signs] of [[1, ">--"], [2, "+>--"], [3, "++>-"], [4, "+++>"], [5, "++++"]]) {
            parts.backends.allowSteps(count);
            tryVerify(() => shown() === signs, 60000, signs);
            wait(30);
            compare(shown(), signs, "nothing moves by itself");
        }
        compare(items(seen, item => item instanceof AutoPilotStep).map(step => step.text), ["Image loaded", "Detected 3 faces", "Detected medium noise and medium blur", "Calculated auto-suggested values"]);
        parts.settle();
    }
}
