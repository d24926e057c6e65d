import QtQuick
import QtTest
import PebbleUI
import imageenhance
import "../../imageenhance/utils/enhancementRow.mjs" as Rules
import "../../imageenhance/utils/reasons.mjs" as Reasons

EnhancementParts {
    id: parts

    name: "Enhancements"

    SignalSpy {
        id: reports
        target: report
        signalName: "track"
    }
    EditedFilterReport {
        id: report
        panelState: parts.panelState
    }

    function init(): void {
        openWith(["Denoise", "Sharpen", "Exposure Adjust", "Enhance"]);
        reports.clear();
    }

    function order(): list<string> {
        return Array.from(panelState.currentFilterStack);
    }

    // A button of a row, which is there while the pointer is over the row.
    function pressButton(name: string, text: string): void {
        mouseMove(row(name), 100, 24);
        tryVerify(() => named(row(name), text) !== null);
        mouseClick(named(row(name), text));
    }

    // Drags a row by its middle so that it comes to lie on another one.
    function drag(name: string, to: int, atEnd: string): void {
        const from = panelState.enhancementsModel.indexOfFilter(name) * list.pitch + 24;
        const end = to * list.pitch + 24;
        mousePress(list, 100, from);
        for (let step = 1; step <= 10; ++step)
            mouseMove(list, 100, from + (end - from) * step / 10, 10, Qt.LeftButton);
        if (atEnd === "escape")
            keyClick(Qt.Key_Escape);
        mouseRelease(list, 100, end);
        settle();
    }

    function choose(text: string): void {
        let item = null;
        tryVerify(() => (item = items(list.Window.window.contentItem, item => item.text === text && item.triggered && item.width > 0)[0] ?? null) !== null, 5000, text);
        wait(50);
        mouseClick(item);
        settle();
        wait(150); // the menu leaves, and rows move
    }

    function test_click_toggles_panel(): void {
        mouseClick(row("Sharpen"), 100, 24);
        compare([panelState.refiningFilter, view("Sharpen").visible, view("Denoise").visible], ["Sharpen", true, false]);
        mouseClick(row("Denoise"), 100, 24);
        compare([panelState.refiningFilter, view("Sharpen").visible, view("Denoise").visible], ["Denoise", false, true]);
        compare([panels.sidebarOffset, view("Denoise").x + 252, view("Denoise").height], [252, width - 272, panels.height]);
        mouseClick(row("Denoise"), 100, 24);
        compare([panelState.refiningFilter, view("Denoise").visible, panels.sidebarOffset], ["", false, 0]);
        controls.setParam("Sharpen", "enabled", false);
        mouseClick(row("Sharpen"), 100, 24);
        compare([actions.isEnabled("Sharpen"), controls.currentCategory], [true, "Sharpen"], "a hidden filter is shown first");
    }

    function test_row_buttons(): void {
        mouseClick(row("Sharpen"), 100, 24);
        for (const [button, enabled] of [["Hide", false], ["Show", true]]) {
            pressButton("Sharpen", button);
            compare([actions.isEnabled("Sharpen"), panelState.refiningFilter], [enabled, ""]);
        }
        pressButton("Sharpen", "Remove");
        compare(order(), ["Denoise", "Exposure Adjust", "Enhance"]);
        verify(!controls.currentControls.Sharpen);
    }

    function test_row_menu(): void {
        mouseClick(row("Denoise"), 100, 24, Qt.RightButton);
        choose("Duplicate denoise");
        compare(order(), ["Denoise", "Sharpen", "Exposure Adjust", "Denoise2", "Enhance"]);
        mouseClick(row("Denoise2"), 100, 24, Qt.RightButton);
        choose("Hide denoise");
        verify(!actions.isEnabled("Denoise2"));
        mouseClick(row("Denoise2"), 100, 24, Qt.RightButton);
        choose("Remove all enhancements");
        compare([order(), list.count], [[], 0]);
    }

    function test_locked_row_takes_no_mouse(): void {
        controls.setParam("Sharpen", "locked", true);
        mouseClick(row("Sharpen"), 100, 24);
        mouseClick(row("Sharpen"), list.width - 24, 24);
        compare([panelState.refiningFilter, order().length], ["", 4]);
        drag("Sharpen", 0, "");
        compare(order()[1], "Sharpen");
    }

    function test_drags_data(): var {
        const before = ["Denoise", "Sharpen", "Exposure Adjust", "Enhance"];
        return [
            { tag: "down", drag: "Denoise", to: 2, order: ["Sharpen", "Exposure Adjust", "Denoise", "Enhance"], runs: 1 },
            { tag: "up", drag: "Exposure Adjust", to: 0, order: ["Exposure Adjust", "Denoise", "Sharpen", "Enhance"], runs: 1 },
            { tag: "onto Enhance", drag: "Denoise", to: 3, order: ["Sharpen", "Exposure Adjust", "Denoise", "Enhance"], runs: 1 },
            { tag: "Enhance itself", drag: "Enhance", to: 0, order: before },
            { tag: "onto RAW", filters: ["RAW", "Sharpen"], drag: "Sharpen", to: 0, order: ["RAW", "Sharpen"] },
            { tag: "onto a locked one", locked: "Denoise", drag: "Sharpen", to: 0, order: before },
            { tag: "a little", drag: "Denoise", to: 0.3, order: before },
            { tag: "taken back", drag: "Denoise", to: 2, atEnd: "escape", order: before }
        ];
    }

    function test_drags(row): void {
        if (row.filters)
            openWith(row.filters);
        if (row.locked)
            controls.setParam(row.locked, "locked", true);
        settle();
        forget();
        drag(row.drag, row.to, row.atEnd ?? "");
        compare([order(), panelState.enhancementsModel.names(), Array.from(controls.filterOrder)], [row.order, row.order, row.order]);
        compare(parts.runs().length, row.runs ?? 0);
    }

    function test_keyboard_alone(): void {
        list.forceActiveFocus(Qt.TabFocusReason);
        list.currentIndex = 0;
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        compare(panelState.refiningFilter, "Sharpen");
        keyClick(Qt.Key_Tab);
        verify(!list.activeFocus, "Tab goes into the panel");
        keyClick(Qt.Key_Escape);
        compare([panelState.refiningFilter, list.activeFocus], ["", true]);
        keyClick(Qt.Key_Up, Qt.AltModifier);
        compare(order()[0], "Sharpen");
        tryCompare(list, "currentIndex", 0);
        keyClick(Qt.Key_F10, Qt.ShiftModifier);
        wait(50);
        keyClick(Qt.Key_Down);
        wait(50);
        keyClick(Qt.Key_Return);
        verify(!actions.isEnabled("Sharpen"), "the menu's first entry");
        tryVerify(() => list.activeFocus);
        keyClick(Qt.Key_Delete);
        compare(order(), ["Denoise", "Exposure Adjust", "Enhance"]);
    }

    function test_drag_of_a_slider_is_one_step_and_one_run(): void {
        mouseClick(row("Denoise"), 100, 24);
        settle();
        controls.forgetEdits();
        forget();
        const strength = () => controls.currentControls.Denoise.params.param1_normalv2;
        const before = strength();
        const knob = (items(view("Denoise"), item => item instanceof PbLabeledSlider)[0] as PbLabeledSlider).slider;
        const steps = parts.panel.logic.steps;
        mousePress(knob, knob.width / 4, knob.height / 2);
        for (const x of [2, 3, 4, 5])
            mouseMove(knob, knob.width * x / 7, knob.height / 2, 5);
        wait(2 * steps.pause);
        compare([steps.canUndo, backends.runs().length], [false, 0], "not before its end");
        mouseRelease(knob, knob.width * 5 / 7, knob.height / 2);
        const after = strength();
        verify(after !== before);
        compare(parts.runs().map(run => run.params.Denoise.params.param1_normalv2), [after]);
        for (const [step, value] of [[() => steps.undo(), before], [() => steps.redo(), after]]) {
            forget();
            tryVerify(() => steps.canUndo || steps.canRedo);
            step();
            compare([strength(), panelState.refiningFilter], [value, "Denoise"]);
            compare(parts.runs().length, 1);
        }
        compare(knob.value, Math.round(after * 100));
    }

    function test_panels_go_with_their_rows(): void {
        const children = panels.children.length;
        mouseClick(row("Sharpen"), 100, 24);
        controls.setCurrentIndex(1);
        settle();
        compare([panelState.refiningFilter, list.count, panels.children.length], ["", 0, children - 4]);
        for (let i = 0; i < 3; ++i) {
            panelState.addNewFilterToHistory("Denoise", "Denoise", true);
            verify(view("Denoise").visible, "opens with its row");
            panelState.removeFilter(0, "Denoise");
            compare([panelState.refiningFilter, panels.children.length], ["", children - 4]);
        }
    }

    function test_row_without_panel(): void {
        const told = logged(() => panelState.addNewFilterToHistory("Face Recovery")).join("\n");
        verify(told.includes("Error creating focus column object") && told.includes("Refinement panel was not created."), told);
        tryVerify(() => row("Face Recovery")?.adjustedFilterName === "Face Recovery");
        compare([view("Face Recovery"), row("Face Recovery").subLine], [null, "No faces selected"]);
    }

    function test_editing_an_earlier_filter_is_told_once_an_opening(): void {
        for (const [name, told] of [["Sharpen", 1], ["Enhance", 1], ["Sharpen", 2]]) {
            actions.showRefinePanel(name);
            controls.setParam(name, "p", Math.random());
            controls.setParam(name, "p", Math.random());
            compare(reports.count, told, name);
        }
        compare(reports.signalArguments[0][1], { filterOrder: "Denoise,Sharpen,Exposure Adjust,Enhance", editedFilter: "Sharpen", index: 1, numberFromTop: 2 });
    }

    function test_sub_lines_data(): var {
        const subject = (model, strokes, mask = true) => ({ params: { mask }, subjectSettings: { model, strokes } });
        return [
            { tag: "no mask", category: "Sharpen", filter: subject("Subject", [], false), text: "" },
            { tag: "all of the picture", category: "Sharpen", filter: subject("All", []), text: "" },
            { tag: "drawn on all", category: "Sharpen", filter: subject("All", [{}]), text: "Custom" },
            { tag: "subject", category: "Sharpen", filter: subject("Sky", []), text: "Sky" },
            { tag: "none", category: "Sharpen", filter: subject("none", []), text: "Nothing selected" },
            { tag: "no filter", category: "Sharpen", filter: undefined, text: "" },
            { tag: "text", category: "Text Recovery", filter: {}, text: "Nothing selected" },
            { tag: "all text", category: "Text Recovery", filter: { params: { strokes: [{ mode: "fill" }] } }, text: "All" },
            { tag: "some text", category: "Text Recovery", filter: { params: { strokes: [{ mode: "fill" }, {}] } }, text: "Custom" },
            { tag: "a face", category: "Face Recovery", filter: { params: { selectedFaces: [3] } }, text: "1 face selected" },
            { tag: "faces", category: "Face Recovery", filter: { params: { selectedFaces: [0, 1] } }, text: "2 faces selected" }
        ];
    }

    function test_sub_lines(row): void {
        compare(Rules.subLine(row.category, row.filter, controls.categories), row.text);
    }

    function test_spinner_runs_while_a_run_begins(): void {
        backends.scriptRuns(0.4, "Preparing", "");
        backends.hold(["runs"]);
        controls.setParam("Denoise", "param1_normalv2", Math.random());
        tryVerify(() => row("Sharpen").starting, 60000);
        backends.hold([]);
        tryVerify(() => !row("Sharpen").starting, 60000);
        for (const [arguments_, shown] of [[[true, false, false, true, false], true], [[true, false, true, true, false], false], [[true, true, true, true, false], true], [[true, true, true, false, false], false], [[true, true, true, true, true], false]])
            compare(Rules.showsSpinner(...arguments_), shown, arguments_);
    }

    function test_reasons_data(): var {
        return [
            { tag: "noise", category: "Denoise", reason: { measured: 12.04, threshold: 3.4, text: "t" }, sentence: "Noise measured: 12 of 255, from 3.4 on" },
            { tag: "noise of a RAW file below the threshold", category: "RAW", reason: { measured: 1.239, threshold: 2, text: "t" }, sentence: "Noise measured: 1.24 of 255. t" },
            { tag: "blur", category: "Sharpen", reason: { measured: 1.5, threshold: 1.15, text: "t" }, sentence: "Blur measured: 1.5 pixels, from 1.15 on" },
            { tag: "small", category: "Enhance", reason: { measured: 2e6, threshold: 5333333, text: "t" }, sentence: "Size measured: 2 megapixels, enlarged up to 5.33" },
            { tag: "size of the preferences", category: "Enhance", reason: { measured: 123456789, threshold: 5333333, text: "t" }, sentence: "Size measured: 123 megapixels. t" },
            { tag: "dark", category: "Exposure Adjust", reason: { measured: 0.1, threshold: 0.2, text: "t" }, sentence: "Brightness measured: 10 %, up to 20 %" },
            { tag: "bright", category: "Exposure Adjust", reason: { measured: 0.912, threshold: 0.85, text: "t" }, sentence: "Brightness measured: 91.2 %, from 85 % on" },
            { tag: "cast", category: "White Balance Adjust", reason: { measured: 0.3, threshold: 0.25, text: "t" }, sentence: "Color cast measured: 35 %, from 28 % on" },
            { tag: "no figures", category: "Denoise", reason: { text: "t" }, sentence: "t" },
            { tag: "not a number", category: "Denoise", reason: { measured: NaN, threshold: 1 }, sentence: "" },
            { tag: "another category", category: "Face Recovery", reason: { measured: 1, threshold: 1, text: "t" }, sentence: "t" },
            { tag: "no reason", category: "Denoise", reason: undefined, sentence: "" }
        ];
    }

    function test_reasons(row): void {
        compare(Reasons.sentence(row.category, row.reason), row.sentence);
    }
}
