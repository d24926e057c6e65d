import QtQuick
import QtTest
import PebbleUI
import TControls
import TFilterGenerator
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
    property size inputSize: Qt.size(1000, 800)
    property TFilterGenerator generator
    property SuggestionList list
    property SuggestiveAutoPilotCard card

    FilterVocabulary {
        id: words
        controls: parts.controls
    }
    EditModes {
        id: modes
        faceCount: -1
    }
    RightPanelState {
        id: stack
        controls: parts.controls
        engine: parts.engine
        modes: modes
        vocabulary: words
        exporting: false
        problems: ({})
    }
    Component {
        id: lists

        SuggestionList {
            controls: parts.controls
            generator: parts.generator
            settings: parts.settings
            engine: parts.engine
            vocabulary: words
            inputSize: parts.inputSize
            rowCount: stack.enhancementsModel.count
            autopilotRunning: parts.windowState.autopilotRunning
            onWanted: (category, subject) => {
                parts.log.push([category, subject]);
                stack.addNewFilterToHistory(category, stack.getAdjustedFilterName(category), true);
            }
        }
    }
    PbButton {
        id: before
    }
    Item {
        id: place
        z: 1

        Component {
            id: cards

            SuggestiveAutoPilotCard {
                suggestions: parts.list
                collapsed: false
                onHoverSubject: (show, subject) => parts.log.push([show, subject])
                onSaveAsPreset: parts.log.push("save")
                onExpandPanel: parts.log.push("expand")
            }
        }
    }
    PbButton {
        id: after
    }
    PbTooltipPlane {
        id: plane
        anchors.fill: parent
    }

    function initTestCase(): void {
        PebbleStyle.tooltipPlane = plane;
        parts.settings.autopilotRecommendFilters = false;
        parts.settings.autopilotSubjectType = "Subject";
        parts.generator = parts.backends.recommender(parts.usual);
    }

    function init(): void {
        parts.settings.autopilotFaceDetect = "auto";
        parts.inputSize = Qt.size(1000, 800);
        offer(parts.offered);
        stack.clearEditsColumn();
    }

    // The card goes before its list.
    function cleanup(): void {
        parts.card?.destroy();
        parts.card = null;
        wait(0);
    }

    function offer(categories: list<string>): void {
        parts.controls.setModelParamInfo(categories.reduce((all, category) => Object.assign(all, { [category]: { m: {} } }), {}));
    }

    // Two pictures, the first of which has been analysed with this answer.
    function analysed(answer: var): void {
        parts.open(["/a.jpg", "/b.jpg"]);
        parts.list = createTemporaryObject(lists, parts) as SuggestionList;
        parts.engine.autoPilotFinished(parts.engine.inputImage.uid, answer);
        parts.turns();
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
            { tag: "just too large", size: Qt.size(6000, 4000), made: ["Denoise-All", "Sharpen-Subject", "Exposure Adjust-Subject"] },
            { tag: "just not too large", size: Qt.size(6000, 3999), made: usually },
            { tag: "sharpened as preferred", subject: "Portrait", made: ["Denoise-All", "Sharpen-Portrait", "Enhance-"] }
        ];
    }

    function test_what_an_image_is_offered(row): void {
        analysed({});
        offer(row.offered ?? parts.offered);
        parts.settings.autopilotFaceDetect = row.faceDetect ?? "auto";
        parts.settings.autopilotSubjectType = row.subject ?? "Subject";
        parts.inputSize = row.size ?? Qt.size(1000, 800);
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
        parts.controls.setCurrentIndex(0);
        stack.showStack(parts.controls.filterOrder);
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
        parts.card = cards.createObject(place) as SuggestiveAutoPilotCard;
        waitForRendering(parts.card);
        wait(250); // until the rows have come in
    }

    function named(name: string): Item {
        const find = item => item.Accessible?.name === name && item.visible && item.width > 0 ? item : Array.from(item.children).map(find).find(found => found);
        return find(card) ?? null;
    }

    function focused(): string {
        return parts.card.Window.activeFocusItem?.Accessible.name ?? "";
    }

    function test_keyboard(): void {
        shown({});
        before.forceActiveFocus();
        keyClick(Qt.Key_Tab);
        compare(focused(), "Denoise all");
        keyClick(Qt.Key_Down);
        compare(focused(), "Sharpen the subject");
        keyClick(Qt.Key_Tab);
        compare(after.activeFocus, true, "the card is one stop");
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        compare(focused(), "Sharpen the subject");
        keyClick(Qt.Key_Return);
        compare([parts.log.shift(), focused()], [["Sharpen", "Subject"], "Upscale"]);
        for (const stop of ["How do we make suggestions?", "Save edits as a new preset"]) {
            keyClick(Qt.Key_Down);
            compare(focused(), stop);
        }
        keyClick(Qt.Key_Return);
        compare(parts.log, ["save"]);
        for (let i = 0; i < 9; ++i)
            keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Space);
        compare([parts.card.minimized, focused()], [true, "Show suggestions"]);
        keyClick(Qt.Key_Return);
        compare([parts.card.minimized, focused()], [false, "Hide suggestions"]);
    }

    function test_pointer(): void {
        shown({});
        const subject = findChild(named("Sharpen the subject"), "subject");
        mouseMove(subject, 4, 4);
        compare(parts.log, [[true, "Subject"]]);
        mouseClick(subject, 4, 4);
        tryVerify(() => parts.log.length === 3);
        compare(parts.log.slice(1), [["Sharpen", "Subject"], [false, "Subject"]]);
        mouseClick(named("Denoise all"));
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
        parts.generator = parts.backends.recommender({});
        parts.list.regenerate();
        tryCompare(parts.card, "height", 90);
        verify(named("No more suggestions for this image"));
        parts.generator = parts.backends.recommender(parts.usual);
        parts.card.collapsed = true;
        compare([parts.card.width, parts.card.height], [48, 48]);
        mouseClick(named("0 new suggestions"));
        compare(parts.log.pop(), "expand");
    }
}
