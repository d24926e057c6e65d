import QtQuick
import QtQuick.Controls
import QtTest
import PebbleUI
import TPresetsManager
import imageenhance

// Settings laid on one image or on the selected ones, and the context menu and questions that lead there.
WindowParts {
    id: parts

    name: "Batch"
    when: windowShown
    visible: true

    readonly property var denoise: ({ category: "Denoise", model: "m", enabled: true, params: { p: 0.5 }, subjectSettings: { model: "All" } })
    readonly property var upscale: ({ category: "Enhance", model: "m", enabled: true, params: { mode: "scale", scale: 2 } })

    readonly property TPresetsManager store: parts.presets

    BatchApply {
        id: batch
        controls: parts.controls
        windowState: parts.windowState
        presets: parts.presets
        onClearAndAddAutopilotFilters: parts.log.push("autopilot on the current")
        onClearEditsColumn: parts.log.push("clear")
        onReadyToAddFilters: parts.log.push("ready")
        onPresetTriggered: parts.log.push("preset")
        onManuallyTriggeredAP: parts.log.push("by hand")
        onAppliedToAll: parts.log.push("all")
        onAppliedToIndex: index => parts.log.push(index)
        onWarned: (title, message) => parts.log.push(title + ": " + message)
    }
    DialogQueue {
        id: dialogQueue
    }
    ApplyQuestions {
        id: questions
        controls: parts.controls
        queue: dialogQueue
        onAutopilotConfirmed: parts.log.push("confirmed")
        onAutopilotCancelled: parts.log.push("cancelled")
        onAutopilotToSelectedConfirmed: parts.log.push("confirmed")
        onAutopilotToSelectedCancelled: parts.log.push("cancelled")
        onCurrentSettingsToSelectedConfirmed: parts.log.push("confirmed")
        onCurrentSettingsToSelectedCancelled: parts.log.push("cancelled")
    }
    ClosingQuestions {
        id: closingQuestions
        controls: parts.controls
        engine: parts.engine
        osUtils: parts.helpers.osUtils
        settings: parts.settings
        queue: dialogQueue
        imageOpen: true
    }
    AppCommands {
        id: commands
        controls: parts.controls
        panel: parts.panel
        closing: closingQuestions
        helpers: parts.helpers
    }
    AppShortcuts {
        commands: commands
        preview: parts.preview
        panel: parts.panel
        windowState: parts.windowState
        active: true
    }
    RightClickMenu {
        id: menu
        controls: parts.controls
        windowState: parts.windowState
        commands: commands
        presets: parts.presets
        onAutopilotToSelectedAsked: parts.log.push("autopilot, selected")
        onAutopilotToIndexAsked: index => parts.log.push("autopilot, " + index)
        onCurrentSettingsToSelectedAsked: parts.log.push("settings, selected")
        onCurrentSettingsToIndexAsked: index => parts.log.push("settings, " + index)
        onPresetToSelectedAsked: name => parts.log.push(`${name}, selected`)
        onPresetToIndexAsked: (name, index) => parts.log.push(`${name}, ${index}`)
    }
    RightClickRules {
        id: rules
        controls: parts.controls
        windowState: parts.windowState
    }

    function save(name: string, order: list<string>): void {
        store.savePreset({ version: 1, name, filterOrder: order, controls: { Denoise: denoise, Enhance: upscale } });
    }

    function orders(): var {
        return [0, 1, 2].map(index => controls.getFilterOrder(index));
    }

    function initTestCase(): void {
        settings.autopilotRecommendFilters = false;
        controls.modelParamInfo = { Denoise: { m: {} }, Enhance: { m: {} } };
        backends.advise({ Sharpen: { enabled: true, p: 1 }, Denoise: { enabled: false } });
    }

    function init(): void {
        Array.from(store.presets).forEach(name => store.deletePreset(name));
        open(["/a.jpg", "/b.jpg", "/c.jpg"]);
        controls.selectedImages = [0, 2];
    }

    function cleanup(): void {
        menu.close();
        tryVerify(() => !menu.visible, 60000);
    }

    // Applying

    function test_preset_data(): var {
        const reload = ["clear", "ready", "preset"];
        return [
            { tag: "to the selected", apply: () => batch.applyNamedPresetToSelected("p"), orders: [["Denoise"], [], ["Denoise"]], log: reload.concat("all") },
            { tag: "to the current one", apply: () => batch.applyNamedPresetToIndex("p", 0), orders: [["Denoise"], [], []], log: reload.concat(0) },
            { tag: "to another", apply: () => batch.applyNamedPresetToIndex("p", 1), orders: [[], ["Denoise"], []], log: [1] },
            { tag: "to none", select: [7], apply: () => batch.applyNamedPresetToSelected("p"), orders: [[], [], []], log: reload.concat("all") }
        ];
    }

    function test_preset(row): void {
        save("p", ["Denoise"]);
        if (row.select)
            controls.selectedImages = row.select;
        row.apply();
        compare(orders(), row.orders);
        compare(log, row.log);
    }

    function test_warnings_are_told_once(): void {
        save("p", ["Enhance"]);
        batch.applyNamedPresetToSelected("p");
        log = [];
        batch.applyNamedPresetToSelected("p");
        compare(log.filter(line => String(line).startsWith("Upscale was not applied: The preset contained")).length, 1);
        compare(log.length, 5);
        compare(orders(), [["Enhance"], [], ["Enhance"]]);
    }

    function test_damaged_preset_changes_nothing(): void {
        store.savePreset({ name: "broken", filterOrder: ["Denoise"] });
        const before = controls.currentControls.changesCount;
        for (const apply of [() => batch.applyNamedPresetToSelected("broken"), () => batch.applyNamedPresetToIndex("gone", 0)]) {
            apply();
            verify(/broken|gone/.test(log[0]), log[0]);
            compare(log.length, 1);
            log = [];
        }
        compare([orders(), controls.currentControls.changesCount], [[[], [], []], before]);
    }

    function test_autopilot(): void {
        for (const index of [1, 2, 0]) {
            controls.setCurrentIndex(index);
            settle();
        }
        controls.selectedImages = [0, 2];
        log = [];
        batch.applyAutopilotToSelected();
        compare(log, ["autopilot on the current", "clear", "ready", "by hand", "all"]);
        compare(orders(), [[], [], ["Sharpen"]], "the panel adds the current image's");
        log = [];
        batch.applyAutopilotToIndex(1);
        compare([log, orders()[1]], [["by hand", 1], ["Sharpen"]]);
    }

    function test_current_settings(): void {
        controls.setParam("Denoise", "p", 0.25);
        controls.setFilterOrder(["Denoise"]);
        batch.applyCurrentSettingsToSelected();
        compare([orders(), controls.getControls(2).Denoise.params.p, log], [[["Denoise"], [], ["Denoise"]], 0.25, ["all"]]);
        batch.applyCurrentSettingsToIndex(1);
        compare([orders()[1], log], [["Denoise"], ["all", 1]]);
    }

    // The questions

    function test_questions_data(): var {
        return [
            { tag: "runAutopilotWarning", ask: () => questions.askAutopilot() },
            { tag: "applyAutopilotToSelectedPrompt", ask: () => questions.askAutopilotToSelected() },
            { tag: "applyCurrentSettingsToSelectedPrompt", ask: () => questions.askCurrentSettingsToSelected() }
        ];
    }

    function test_questions(row): void {
        const dialog = Array.from(questions.data).find(object => object.objectName === row.tag);
        const answers = { confirmed: () => keyClick(Qt.Key_Return), cancelled: () => keyClick(Qt.Key_Escape), "": () => controls.setCurrentIndex(1) };
        for (const answer in answers) {
            log = [];
            row.ask();
            row.ask();
            tryVerify(() => dialog.opened && dialog.settled, 60000);
            verify(dialog.contentItem.Window.activeFocusItem.visualFocus, "it is seen what Return presses, each time");
            answers[answer]();
            tryVerify(() => !dialog.visible, 60000);
            compare([log, dialogQueue.count], [answer === "" ? [] : [answer], 0], "withdrawn without an answer where another image is current");
        }
    }

    // The menu

    function test_rules_data(): var {
        return [
            { tag: "current, with filters", target: "/a.jpg", selected: [0], filters: true, is: [true, true, true, false] },
            { tag: "current, no filters", target: "/a.jpg", selected: [0], is: [true, true, true, false] },
            { tag: "another, with filters here", target: "/b.jpg", selected: [0], filters: true, is: [false, false, true, true] },
            { tag: "selected ones", target: "/a.jpg", selected: [0, 1], filters: true, is: [true, true, true, true] },
            { tag: "no particular one", target: "", selected: [0, 1], filters: true, is: [true, false, true, false] },
            { tag: "selection of what has gone", target: "/b.jpg", selected: [9], filters: true, is: [false, false, true, true] }
        ];
    }

    function test_rules(row): void {
        if (row.filters) {
            controls.setParam("Denoise", "enabled", true);
            controls.setFilterOrder(["Denoise"]);
        }
        controls.selectedImages = row.selected;
        rules.evaluate(row.target);
        compare([rules.isCurrentlyPreviewedImage, rules.isTargetSelected, rules.autopilotEnabled, rules.currentSettingsEnabled], row.is);
        compare(rules.index(), row.target === "/b.jpg" ? 1 : 0);
    }

    function laidOut(owner: Menu): void {
        tryVerify(() => owner.opened && owner.contentItem.contentHeight > 0, 60000);
        waitForPolish(owner.contentItem);
    }

    // The row of a menu with this text.
    function entry(owner: Menu, text: string): MenuItem {
        return Array.from({ length: owner.count }, (unused, i) => owner.itemAt(i)).find(item => item.text === text);
    }

    function test_menu_data(): var {
        return [
            { tag: "preset, selected", path: "/c.jpg", way: ["Apply", "Preset", "b && c"], log: ["b & c, selected"] },
            { tag: "preset, target", path: "/b.jpg", way: ["Apply", "Preset", "A"], log: ["A, 1"] },
            { tag: "autopilot, current", way: ["Apply", "Autopilot"], log: ["autopilot, selected"] },
            { tag: "settings, target", path: "/b.jpg", way: ["Apply", "Current settings"], log: ["settings, 1"] },
            { tag: "close the target", path: "/b.jpg", way: ["Close image"], left: ["/a.jpg", "/c.jpg"] }
        ];
    }

    function test_menu(row): void {
        ["b & c", "A", "z"].forEach(name => save(name, ["Denoise"]));
        controls.setParam("Denoise", "enabled", true);
        controls.setFilterOrder(["Denoise"]);
        menu.showAtPoint(Qt.point(100, 20), row.path ?? "");
        laidOut(menu);
        compare(menu.targetImagePath, row.path ?? "/a.jpg");
        let at = menu;
        for (const text of row.way) {
            const item = entry(at, text);
            verify(item && item.enabled, text);
            mouseClick(item);
            if (item.subMenu) {
                at = item.subMenu;
                laidOut(at);
            }
        }
        tryVerify(() => !menu.visible, 60000);
        compare(log, row.log ?? []);
        compare(controls.loadedImages, row.left ?? ["/a.jpg", "/b.jpg", "/c.jpg"]);
        compare(menu.targetImagePath, "/a.jpg", "speaks of the current image again");
    }

    function test_menu_offers_what_can_be_done(): void {
        menu.showAtPoint(Qt.point(10, 10));
        const shown = () => Array.from({ length: menu.count }, (unused, i) => menu.itemAt(i)).filter(item => item.visible).map(item => item.text);
        const one = ["Apply", "Open images...", "Close image", "Show in explorer"];
        compare(shown(), ["Apply", "Open images...", "Close image", "Close selected images", "Close all images", "Show in explorer"]);
        compare(entry(entry(menu, "Apply").subMenu, "Preset").enabled, false, "there are none");
        editMode = EditMode.Crop;
        compare(entry(menu, "Apply").enabled, false);
        open(["/a.jpg"]);
        compare(shown(), one);
    }

    function test_selecting_by_keys(): void {
        const all = [0, 1, 2];
        keyClick(Qt.Key_A, Qt.ControlModifier);
        compare(controls.selectedImages, all);
        editMode = EditMode.Crop;
        keyClick(Qt.Key_A, Qt.ControlModifier | Qt.ShiftModifier);
        compare(controls.selectedImages, all, "not while refining");
        editMode = EditMode.None;
        keyClick(Qt.Key_A, Qt.ControlModifier | Qt.ShiftModifier);
        compare(controls.selectedImages, [0]);
        commands.step(1);
        compare([controls.selectedImages, controls.currentIndex], [[1], 1], "a selection of one follows");
    }
}
