import QtQuick
import QtTest
import imageenhance
import "../../imageenhance/utils/suggestions.mjs" as Suggestions

// What is proposed next, when that changes, and what a click and a key on the card do.
WindowParts {
    id: parts

    name: "Suggestions"
    when: windowShown
    visible: true

    // By count and from nothing: Denoise, faces, Sharpen, Upscale, lighting of the subject, color. With more on the
    // picture one continuation outweighs the other.
    readonly property var usual: ({
            "['X-', 'DENOISE-All']": 100, "['X-', 'FACE-']": 95, "['X-', 'SHARPEN-Subject']": 90, "['X-', 'UPSCALE-']": 80,
            "['X-', 'EXPOSURE-Subject']": 70, "['X-', 'TEMPERATURE-All']": 60,
            "['DENOISE-All', 'EXPOSURE-Subject']": 1, "['DENOISE-All', 'TEMPERATURE-All']": 1e-20
        })
    readonly property var offered: ["Denoise", "Sharpen", "Enhance", "Exposure Adjust", "White Balance Adjust"]
    readonly property SuggestionList list: parts.panel.suggestions
    readonly property RightPanelState stack: parts.panel.logic.stack
    readonly property SuggestiveAutoPilotCard card: parts.items(parts.panel, item => item instanceof SuggestiveAutoPilotCard)[0] as SuggestiveAutoPilotCard

    Connections {
        target: parts.list

        function onWanted(category: string, subject: string): void {
            parts.log.push([category, subject]);
        }
    }
    Connections {
        target: parts.card

        function onHoverSubject(show: bool, subject: string): void {
            parts.log.push([show, subject]);
        }
    }
    Connections {
        target: parts.panel

        function onSaveAsPreset(): void {
            parts.log.push("save");
        }
    }

    function initTestCase(): void {
        parts.settings.autopilotRecommendFilters = false;
        parts.settings.autopilotSubjectType = "Subject";
    }

    function init(): void {
        parts.settings.autopilotFaceDetect = "auto";
        parts.settings.rightPanelCollapsed = false;
        parts.recommender = parts.backends.recommender(parts.usual);
        offer(parts.offered);
    }

    function offer(categories: list<string>): void {
        parts.controls.setModelParamInfo(categories.reduce((all, category) => Object.assign(all, { [category]: { m: {} } }), {}));
    }

    // Two pictures, the first of which has been analysed with this answer.
    function analysed(answer: var): void {
        parts.backends.advise(answer);
        parts.open(["/a.jpg", "/b.jpg"]);
        parts.backends.advise({});
    }

    function rows(): list<var> {
        return Array.from({ length: list.suggestionModel.count }, (_, i) => {
            const row = list.suggestionModel.get(i);
            return [row.filterType, row.subject, row.isAPFilter].join();
        });
    }

    function storedWords(): list<string> {
        return Array.from(parts.controls.autoPilotSuggestionOrder).map(({ filterName, subject }) => filterName + "-" + subject);
    }

    function test_subjects_collapse(): void {
        for (const [name, given, made] of [
            ["both", ["S-Sky", "S-Background", "D-All", "S-Subject"], ["S-Subject", "S-Background", "S-All", "D-All"]],
            ["one of the two", ["S-Subject", "D-All", "S-Subject", "S-Sky"], ["S-Subject", "S-Sky", "D-All"]],
            ["without a subject", ["E-", "E-", "C"], ["E-", "C"]]
        ])
            compare(Suggestions.collapseSubject(given), made, name);
    }

    function test_applied_and_excluded_data(): var {
        const wide = [{ filterName: "F", subject: "Landscape" }];
        return [
            { tag: "order", order: ["RAW", "Denoise2", "Face Recovery", "Enhance"], applied: ["Denoise-All", "Face Recovery-"], excluded: ["Denoise-All", "Face Recovery-", "Enhance-"] },
            { tag: "collapsed", order: ["Subject", "Subject2", "Denoise"], applied: ["Subject-Subject", "Subject-Background", "Subject-All", "Denoise-All"], excluded: ["Subject-Subject", "Subject-Background", "Subject-All", "Denoise-All"] },
            { tag: "none can be", unavailable: ["Text Recovery-"], applied: [], excluded: ["Text Recovery-"] },
            // The whole picture's own exclusions collapse, and a landscape's excludes all but itself.
            { tag: "landscape", existing: wide, applied: [], excluded: ["F-Subject", "F-Background", "F-All"] },
            { tag: "all", existing: [{ filterName: "F", subject: "All" }], applied: [], excluded: ["F-Subject", "F-Background", "F-All"] },
            { tag: "subject", existing: [{ filterName: "F", subject: "Subject" }], applied: [], excluded: ["F-All", "F-Landscape", "F-Sky", "F-Subject"] },
            { tag: "other subject", existing: [{ filterName: "F", subject: "Portrait" }], applied: [], excluded: ["F-Portrait"] }
        ];
    }

    function test_applied_and_excluded(row): void {
        const subjects = { Denoise: "All", Denoise2: "All", Subject: "Subject", Subject2: "Background" };
        compare(Suggestions.appliedFilters(row.order ?? [], name => subjects[name]), row.applied);
        compare(Suggestions.excludedFilters(row.unavailable ?? [], row.existing ?? [], row.order ?? [], name => subjects[name]), row.excluded);
    }

    function test_what_an_image_is_offered_data(): var {
        const faces = parts.offered.concat("Face Recovery");
        const usually = ["Denoise-All", "Sharpen-Subject", "Enhance-"];
        const withFaces = ["Denoise-All", "Face Recovery-", "Sharpen-Subject"];
        return [
            { tag: "no model for faces", made: usually },
            { tag: "faces", offered: faces, made: withFaces },
            { tag: "no faces found", offered: faces, problems: { autoFaces: [] }, made: usually },
            { tag: "faces not looked for", offered: faces, faceDetect: "none", made: usually },
            { tag: "just too large", width: 6000, made: ["Denoise-All", "Sharpen-Subject", "Exposure Adjust-Subject"] },
            { tag: "just not too large", width: 5999, made: usually },
            { tag: "sharpened as preferred", subject: "Portrait", made: ["Denoise-All", "Sharpen-Portrait", "Enhance-"] }
        ];
    }

    function test_what_an_image_is_offered(row): void {
        offer(row.offered ?? parts.offered);
        parts.backends.addFile("/sized.jpg", row.width ?? 1000, 4000);
        parts.open([]);
        parts.controls.loadImages(["/sized.jpg"]);
        parts.settle();
        parts.settings.autopilotFaceDetect = row.faceDetect ?? "auto";
        parts.settings.autopilotSubjectType = row.subject ?? "Subject";
        parts.engine.autoProblemsUpdated("another", { autoFaces: [] });
        parts.engine.autoProblemsUpdated(parts.engine.inputImage.uid, row.problems ?? {});
        parts.list.regenerate();
        parts.settings.autopilotSubjectType = "Subject";
        compare(storedWords(), row.made);
    }

    function test_from_the_analysis_to_the_next_suggestion(): void {
        analysed({ Denoise: { enabled: true }, Sharpen: { enabled: false } });
        compare(rows(), ["Denoise,All,true", "Sharpen,Subject,false", "Upscale,,false"]);
        compare([parts.list.canApplyRecommendations, parts.list.canSavePreset], [true, false]);
        parts.list.take(0);
        parts.list.take(0); // while the next is looked for: nothing
        compare(parts.log, [["Denoise", "All"]]);
        compare([parts.list.suggestionsTaken, parts.list.suggestionsProvided, storedWords()], [1, 3, ["Sharpen-Subject", "Enhance-"]]);
        compare([parts.list.canApplyRecommendations, parts.list.canSavePreset, parts.list.firstSuggestions], [false, true, true]);
        tryCompare(parts.list, "showAnalysisLoader", false);
        compare(storedWords(), ["Sharpen-Subject", "Enhance-", "Exposure Adjust-Subject"]);
        compare(parts.list.firstSuggestions, false);
        parts.list.removeUpscale();
        compare(rows(), ["Sharpen,Subject,false", "Adjust lighting,Subject,false", "Balance color,All,false"]);
        parts.list.removeUpscale();
        compare(storedWords().length, 3);
        parts.list.take(0);
        parts.controls.setCurrentIndex(1);
        parts.settle();
        compare([parts.list.showAnalysisLoader, rows()], [false, ["Denoise,All,false", "Sharpen,Subject,false", "Upscale,,false"]]);
        parts.controls.setCurrentIndex(0);
        compare(rows(), ["Adjust lighting,Subject,false", "Balance color,All,false"], "as it was left");
    }

    function test_second_filter_changes_the_subject_of_the_first(): void {
        analysed({});
        parts.list.take(0);
        parts.controls.setAutoPilotSuggestionOrder([{ filterName: "Denoise", subject: "Background" }]);
        parts.controls.setCurrentIndex(1);
        parts.settle();
        parts.controls.setCurrentIndex(0);
        parts.settle();
        parts.list.take(0);
        compare(parts.controls.filterOrder, ["Denoise", "Denoise2"]);
        compare(["Denoise", "Denoise2"].map(name => parts.controls.getSubjectSettings(name).model), ["Background", "All"]);
    }

    function test_sharpen_does_not_come_back_beside_raw(): void {
        analysed({ RAW: { enabled: true }, Sharpen: { enabled: true } });
        parts.controls.setFilterOrder(["RAW"]);
        parts.list.regenerate();
        compare(rows(), ["Upscale,,false", "Balance color,All,false"]);
        compare(storedWords(), ["Enhance-", "White Balance Adjust-All"]);
    }

    // On the card

    function shown(answer: var): void {
        analysed(answer);
        waitForRendering(parts.card);
        wait(250); // until the rows have come in
    }

    function test_keyboard(): void {
        shown({});
        parts.named(parts.panel, "Add enhancements").forceActiveFocus();
        keyClick(Qt.Key_Tab);
        compare(parts.focusedName(), "Denoise all");
        keyClick(Qt.Key_Down);
        compare(parts.focusedName(), "Sharpen the subject");
        keyClick(Qt.Key_Tab);
        verify(parts.items(parts.card, item => item.activeFocus).length === 0, "the card is one stop");
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        compare(parts.focusedName(), "Sharpen the subject");
        keyClick(Qt.Key_Return);
        compare([parts.log.shift(), parts.focusedName()], [["Sharpen", "Subject"], "Upscale"]);
        for (const stop of ["How do we make suggestions?", "Save edits as a new preset"]) {
            keyClick(Qt.Key_Down);
            compare(parts.focusedName(), stop);
        }
        keyClick(Qt.Key_Return);
        compare(parts.log, ["save"]);
        for (let i = 0; i < 9; ++i)
            keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Space);
        compare([parts.card.minimized, parts.focusedName()], [true, "Show suggestions"]);
        keyClick(Qt.Key_Return);
        compare([parts.card.minimized, parts.focusedName()], [false, "Hide suggestions"]);
    }

    function test_pointer(): void {
        shown({});
        const subject = findChild(parts.named(parts.card, "Sharpen the subject"), "subject");
        mouseMove(subject, 4, 4);
        compare(parts.log, [[true, "Subject"]]);
        mouseClick(subject, 4, 4);
        tryVerify(() => parts.log.length === 3);
        compare(parts.log.slice(1), [["Sharpen", "Subject"], [false, "Subject"]]);
        mouseClick(parts.named(parts.card, "Denoise all"));
        compare(parts.log.length, 3, "not while the next is looked for");
    }

    function test_heights(): void {
        shown({});
        compare(parts.card.height, 112 + 3 * 46);
        parts.list.take(0);
        compare(parts.card.height, 112 + 3 * 46, "the next has the place of the one taken");
        parts.card.minimized = true;
        compare(parts.card.height, 36);
        parts.card.minimized = false;
        parts.recommender = parts.backends.recommender({});
        parts.list.regenerate();
        tryCompare(parts.card, "height", 90);
        verify(parts.named(parts.card, "No more suggestions for this image"));
        parts.settings.rightPanelCollapsed = true;
        compare([parts.card.width, parts.card.height], [48, 48]);
        tryCompare(parts.panel, "width", 48);
        mouseClick(parts.named(parts.card, "0 new suggestions"));
        compare(parts.settings.rightPanelCollapsed, false);
    }
}
