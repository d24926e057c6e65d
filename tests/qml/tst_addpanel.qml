import QtQuick
import QtTest
import PebbleUI
import imageenhance

// The flyout with keys and pointer.
WindowParts {
    id: top

    name: "AddPanel"
    when: windowShown
    visible: true
    width: 800
    height: 600

    readonly property var all: ["Denoise", "Sharpen", "Exposure Adjust", "White Balance Adjust", "Face Recovery", "Text Recovery", "Enhance", "Inpaint"]

    Item {
        id: button
        x: 560
        y: 200
        width: 200
        height: 40
    }
    TextInput {
        id: elsewhere
    }
    EnhancementListPanel {
        id: panel

        z: 2
        presets: []
        vocabulary: top.panel.logic.vocabulary
        faceCount: 2
        stackHasEnhance: false
        noiseLevel: -1
        blurLevel: -1
        shiftHeld: false
        resizingSupported: true
        psFilter: false
        panelCollapsed: false
        windowHeight: 800
        filesListHeight: 0
        anchorItem: button
        onCloseRefineMode: top.log.push("closeRefineMode")
        onAddFilter: (category, openPanel) => top.log.push(["add", category, openPanel])
        onUpscaleAdded: top.log.push("upscaleAdded")
        onSwitchEditMode: mode => top.log.push(["mode", mode])
        onGenAILockWarningWanted: category => top.log.push(["warn", category])
        onLoadPreset: (name, keepOpen) => top.log.push(["load", name, keepOpen])
        onEditPreset: name => top.log.push(["edit", name])
        onDeletePreset: name => top.log.push(["delete", name])
        onApplyAutopilot: top.log.push("autopilot")
        onFocusWanted: top.log.push("focus")
    }

    function offer(categories: list<string>): void {
        controls.modelParamInfo = categories.reduce((info, category) => Object.assign(info, { [category]: { "Model": {} } }), {});
    }

    function init(): void {
        panel.hide();
        Object.assign(panel, { presets: [], faceCount: 2, stackHasEnhance: false, noiseLevel: -1, blurLevel: -1, shiftHeld: false, resizingSupported: true, windowHeight: 800, filesListHeight: 0, panelCollapsed: false });
        offer(all);
        panel.show();
        wait(0);
        log = [];
    }

    function entries(): list<Item> {
        return items(panel, item => item instanceof AddPanelEntry);
    }

    function entry(text: string): AddPanelEntry {
        return entries().find(entry => entry.text === text) as AddPanelEntry;
    }

    function lit(): string {
        return entries().filter(entry => entry.activeFocus).map(entry => entry.text).join();
    }

    function tip(): string {
        return plane.currentTip?.text ?? "";
    }

    function test_key_walk_and_back_round(): void {
        panel.presets = ["zebra", "mango", "apple"];
        const order = ["apple", "mango", "zebra", "Denoise", "Sharpen", "Adjust lighting", "Balance color", "Face recovery", "Preserve text", "Upscale", "Remove", "Apply Autopilot"];
        compare([lit(), tip()], ["", ""]);
        for (const text of [...order, order[0]]) {
            keyClick(Qt.Key_Down);
            compare(lit(), text);
            verify(tip().includes(text === "Apply Autopilot" ? "Autopilot" : text), text);
        }
        keyClick(Qt.Key_Backtab);
        compare(lit(), "Apply Autopilot");
        keyClick(Qt.Key_Up);
        compare(lit(), "Remove");
        panel.clearFocus();
        compare([panel.open, lit(), tip()], [true, "", ""]);
        keyClick(Qt.Key_Up);
        compare(lit(), "Apply Autopilot");
        keyClick(Qt.Key_Escape);
        compare([panel.open, tip(), log], [false, "", ["focus"]]);
    }

    function test_pointer_and_keys_share_the_cursor(): void {
        mouseMove(entry("Sharpen"), 20, 10);
        compare(lit(), "Sharpen");
        keyClick(Qt.Key_Down);
        compare([lit(), items(plane, item => item instanceof PbTooltipView).length], ["Adjust lighting", 1]);
        mouseMove(entry("Sharpen"), 21, 10);
        compare(lit(), "Sharpen");
        verify(tip().startsWith("<b>Sharpen</b>"));
        mouseMove(top, 5, 5);
        compare(lit(), "Sharpen", "stays when the pointer leaves");
    }

    function test_keys_scroll_under_a_resting_pointer(): void {
        panel.presets = Array.from({ length: 30 }, (unused, i) => "p" + (i + 10));
        wait(0);
        compare(panel.height, 800 - 48 - 48 - 2 - (Qt.platform.os === "windows" ? 32 : 0));
        panel.windowHeight = 500;
        panel.filesListHeight = 100;
        panel.updatePosition();
        mouseMove(entry("p12"), 20, 10);
        keyClick(Qt.Key_End);
        wait(50);
        compare(lit(), "Apply Autopilot");
        const inPanel = text => entry(text).mapToItem(panel, 0, 0).y;
        verify(inPanel("Apply Autopilot") + entry("Apply Autopilot").height <= panel.height);
        compare(plane.currentTip.y, Math.min(panel.y + inPanel("Apply Autopilot"), plane.height - plane.currentTip.height - 10));
        keyClick(Qt.Key_Down);
        wait(50);
        compare(lit(), "p10");
        verify(inPanel("p10") >= 20, "with the title over it");
    }

    function test_choices_data(): var {
        const usual = (category, text) => ({ tag: text, text, said: [["add", category, true], "focus"], shift: [["add", category, false]] });
        const upscale = usual("Enhance", "Upscale");
        return [
            usual("Denoise", "Denoise"), usual("Sharpen", "Sharpen"), usual("Exposure Adjust", "Adjust lighting"),
            usual("White Balance Adjust", "Balance color"), usual("Face Recovery", "Face recovery"),
            { tag: "text", text: "Preserve text", said: [["add", "Text Recovery", true], ["mode", EditMode.Text], "focus"] },
            Object.assign(upscale, { said: ["upscaleAdded", ...upscale.said], shift: ["upscaleAdded", ...upscale.shift] }),
            { tag: "remove", text: "Remove", said: [["add", "Inpaint", true], ["mode", EditMode.Inpaint], ["warn", "Inpaint"], "focus"] },
            { tag: "autopilot", text: "Apply Autopilot", said: ["autopilot"], stays: true },
            { tag: "preset", text: "mine", said: [["load", "mine", false], "focus"], shift: [["load", "mine", true]] }
        ];
    }

    function test_choices(row): void {
        panel.presets = ["mine"];
        wait(0);
        mouseClick(entry(row.text));
        compare([log, panel.open], [row.said, row.stays === true]);
        panel.show();
        log = [];
        panel.shiftHeld = true;
        mouseMove(entry(row.text), 30, 12);
        keyClick(row.shift ? Qt.Key_Return : Qt.Key_Enter);
        compare([log, panel.open], [row.shift ?? row.said, row.shift !== undefined || row.stays === true]);
    }

    function test_entries_that_cannot_be_chosen(): void {
        panel.faceCount = 0;
        panel.stackHasEnhance = true;
        for (const text of ["Face recovery", "Upscale"]) {
            mouseMove(entry(text), 20, 11);
            compare(lit(), text);
            mouseClick(entry(text));
            keyClick(Qt.Key_Return);
        }
        compare([log, panel.open], [[], true]);
    }

    function test_categories_without_a_model_have_no_entry(): void {
        offer(["Denoise", "Sharpen", "Exposure Adjust", "White Balance Adjust", "Enhance"]);
        compare(entries().map(entry => entry.text), ["Denoise", "Sharpen", "Adjust lighting", "Balance color", "Upscale", "Apply Autopilot"]);
        compare(items(panel, item => item.text !== undefined).map(item => item.text).filter(text => ["Presets", "Enhancements", "Generative", "Not sure where to start?"].includes(text)), ["Enhancements", "Not sure where to start?"]);
        panel.focusRemove();
        compare([panel.open, lit()], [true, ""]);
    }

    function test_tips_data(): var {
        const tipOf = { denoise: ["Denoise", "noise in this image"], sharpen: ["Sharpen", "blur in this image"] };
        const level = (tag, key, levels, word) => ({ tag, set: levels, text: tipOf[key][0], has: word ? `Autopilot detected <b>${word}</b> ${tipOf[key][1]}.<br/><br/><b>Tip</b>` : undefined, hasNot: word ? undefined : "Autopilot" });
        const faces = "Pair with <b>Upscaling</b> for the best result.";
        const muted = "Face recovery dramatically improves low-medium quality faces.<br><br>Tip: Pair with Upscaling for the best result.</font>";
        return [
            level("noise unknown", "denoise", { noiseLevel: -1 }), level("no noise", "denoise", { noiseLevel: 0 }),
            level("low noise", "denoise", { noiseLevel: 1 }, "Low"), level("severe noise", "denoise", { noiseLevel: 4 }, "Severe"),
            level("blur unknown", "sharpen", { blurLevel: -1 }), level("high blur", "sharpen", { blurLevel: 3 }, "High"),
            { tag: "faces", set: { faceCount: 1 }, text: "Face recovery", has: faces, hasNot: "disabled" },
            { tag: "no faces", set: { faceCount: 0 }, text: "Face recovery", has: "<b>Face recovery</b> is disabled because no faces were detected in the image.</b>", ends: muted },
            { tag: "not looked for", set: { faceCount: -1 }, text: "Face recovery", has: "because current preferences do not allow for face detection. Enable <b>Default face detection</b> in Autopilot preferences to enable Face recovery.", ends: muted },
            { tag: "upscale", set: {}, text: "Upscale", has: "compression artifcats in the process.", ends: "of <b>32,000 pixels</b> on each side." },
            { tag: "upscale is there", set: { stackHasEnhance: true }, text: "Upscale", has: "compression artifcats", hasNot: "already" },
            { tag: "host keeps the size", set: { resizingSupported: false }, text: "Upscale", has: "compression artifcats", hasNot: "in this mode" },
            { tag: "preset", set: { presets: ["<i>& me"] }, text: "<i>& me", has: "<b>&lt;i&gt;&amp; me</b> is a custom preset." }
        ];
    }

    function test_tips(row): void {
        Object.assign(panel, row.set);
        panel.clearFocus();
        wait(0);
        entry(row.text).forceActiveFocus();
        for (const part of row.has ? [row.has] : [])
            verify(tip().includes(part), tip());
        verify(!row.hasNot || !tip().includes(row.hasNot), tip());
        verify(tip().endsWith(row.ends ?? ""), tip());
        compare(plane.currentTip.textFormat, Text.RichText);
        verify(plane.currentTip.x + plane.currentTip.width <= panel.x);
    }

    function test_why_not_is_told_to_readers(): void {
        panel.stackHasEnhance = true;
        compare(entry("Upscale").description, "Upscale has already been added to this image.");
    }

    function test_preset_menu_data(): var {
        return [
            { tag: "right click", open: item => mouseClick(item, 20, 10, Qt.RightButton), said: [["edit", "b"]] },
            { tag: "menu key", open: () => keyClick(Qt.Key_Menu), said: [["edit", "b"]] },
            { tag: "shift F10", open: () => keyClick(Qt.Key_F10, Qt.ShiftModifier), down: 1, said: [["delete", "b"]] }
        ];
    }

    function test_preset_menu(row): void {
        panel.presets = ["b", "a"];
        wait(0);
        panel.focusPreset("b");
        row.open(entry("b"));
        wait(300);
        compare([panel.open, tip()], [true, ""], "though the menu has the keyboard");
        for (let i = 0; i <= (row.down ?? 0); ++i)
            keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        tryVerify(() => log.length > 0);
        compare(log, row.said);
        tryVerify(() => lit() === "b");
    }

    function test_keys_of_presets(): void {
        panel.presets = ["b", "a"];
        wait(0);
        panel.focusPreset("a");
        keyClick(Qt.Key_F2);
        keyClick(Qt.Key_Delete);
        compare(log, [["edit", "a"], ["delete", "a"]]);
        panel.presets = ["b"];
        tryVerify(() => lit() === "b");
        panel.focusApplyAutopilot();
        keyClick(Qt.Key_Delete);
        keyClick(Qt.Key_Menu);
        mouseClick(entry("Denoise"), 20, 10, Qt.RightButton);
        compare(log.length, 2);
    }

    function test_closes_data(): var {
        return [
            { tag: "focus goes", act: () => elsewhere.forceActiveFocus(), said: [] },
            { tag: "collapsed", act: () => panel.panelCollapsed = true, said: ["focus"] },
            { tag: "toggled", act: () => panel.toggle(), said: ["focus"] }
        ];
    }

    function test_closes(row): void {
        row.act();
        tryVerify(() => !panel.open);
        compare(log, row.said);
        log = [];
        panel.toggle();
        compare([panel.open, panel.activeFocus, log], [true, true, ["closeRefineMode"]]);
    }

    function test_place_data(): var {
        return [
            { tag: "beside the button", buttonY: 60, y: 60 },
            { tag: "moved up", buttonY: 500, y: () => 600 - panel.height - 10 },
            { tag: "not above the top", buttonY: 500, presets: 20, y: 0 }
        ];
    }

    function test_place(row): void {
        button.y = row.buttonY;
        panel.presets = Array.from({ length: row.presets ?? 0 }, (unused, i) => "p" + i);
        wait(0);
        panel.updatePosition();
        compare(panel.y, typeof row.y === "function" ? row.y() : row.y);
        verify(panel.x + panel.width < button.x);
    }
}
