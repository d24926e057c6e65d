import QtQuick
import QtTest
import PebbleUI
import TPresetsManager
import imageenhance
import "../../imageenhance/utils/presetReduction.mjs" as Reduction

// What a preset keeps of an image, what it may be called, and the dialogs that name, rename and delete one.
WindowParts {
    id: parts

    name: "Presets"
    when: windowShown
    visible: true

    property bool isMac: false

    readonly property TPresetsManager store: parts.presets

    DialogQueue {
        id: dialogQueue
    }
    PresetDialogs {
        id: dialogs
        anchors.fill: parent
        controls: parts.controls
        presets: parts.presets
        vocabulary: parts.panel.logic.vocabulary
        helpers: parts.helpers
        queue: dialogQueue
        onSaved: preset => parts.log.push("saved " + preset.name)
        onWarned: (title, message) => parts.log.push(message)
    }
    TextInput {
        id: field
        validator: FileNameValidator {
            isMac: parts.isMac
        }
    }

    function filter(category: string, more = {}): var {
        return Object.assign({ category, model: "m", enabled: true, params: { p: 0.5 }, subjectSettings: { model: "All", strokes: [] } }, more);
    }

    function preset(more = {}): var {
        return Object.assign({ version: 1, filterOrder: ["Denoise", "Sharpen"], controls: { Denoise: filter("Denoise"), Sharpen: filter("Sharpen", { subjectSettings: { model: "Subject" } }) } }, more);
    }

    function dialog(name: string): PbDialog {
        return Array.from(dialogs.data).find(object => object.objectName === name);
    }

    function opened(name: string): PbDialog {
        const found = dialog(name);
        tryVerify(() => found.opened, 60000);
        tryVerify(() => found.settled, 60000);
        return found;
    }

    function part(name: string): Item {
        return findChild(dialog("presetEditor").contentItem, name);
    }

    function names(): var {
        return Array.from(store.presets).sort();
    }

    function init(): void {
        store.presetsDirectory = backends.appContext.presetsDirectory;
        names().forEach(name => store.deletePreset(name));
        log = [];
    }

    function cleanup(): void {
        for (const name of ["presetEditor", "deletePresetWarning"]) {
            dialog(name).reject();
            tryVerify(() => !dialog(name).visible, 60000);
        }
    }

    // What a preset keeps

    function test_reduction_data(): var {
        const strokes = [{ mode: "basic-add" }];
        const whole = [{ mode: "fill" }];
        const size = { mode: "width", width: 9, height: 8, scale: 2, updated: true, useNeuralEngine: true, param1: 0.3 };
        return [
            { tag: "nothing of the image", category: "Denoise", given: { params: { p: 1, locked: true } }, params: { p: 1 }, modified: false },
            { tag: "subject", category: "Sharpen", given: { subjectSettings: { model: "Sky", strokes: [] } }, subject: { model: "Sky", strokes: [] }, modified: false },
            { tag: "no subject", category: "Sharpen", given: { subjectSettings: { model: "none" } }, subject: { model: "All" }, modified: true },
            { tag: "painted", category: "Sharpen", given: { subjectSettings: { model: "Sky", strokes } }, subject: { model: "Sky", strokes: [] }, modified: true },
            { tag: "size", category: "Enhance", given: { params: size }, params: { mode: "width", width: 9, param1: 0.3 }, modified: false },
            { tag: "size of an enlargement keeps strokes", category: "Enhance", given: { subjectSettings: { strokes } }, subject: { strokes }, modified: false },
            { tag: "faces", category: "Face Recovery", given: { params: { param1: 0.8, selectedFaces: [0], highConfidenceFaces: [0], lowConfidenceFaces: [] } }, params: { param1: 0.8 }, modified: true },
            { tag: "faces, none chosen", category: "Face Recovery", given: {}, params: { p: 0.5 }, modified: true },
            { tag: "painted text", category: "Text Recovery", given: { params: { strokes } }, params: { strokes: whole }, modified: true },
            { tag: "all text and more", category: "Text Recovery", given: { params: { strokes: whole.concat(strokes) } }, params: { strokes: whole }, modified: true },
            { tag: "all text", category: "Text Recovery", given: { params: { strokes: whole } }, params: { strokes: whole }, modified: false }
        ];
    }

    function test_reduction(row): void {
        const given = filter(row.category, row.given);
        const before = JSON.stringify(given);
        const { preset, modified } = Reduction.reduced({ version: 1, name: "n", filterOrder: ["x", "RAW", "Inpaint2"], controls: { x: given, RAW: filter("RAW"), Inpaint2: filter("Inpaint"), autoPilot: 3, autoPilotSettings: { Denoise: {} }, justSaved: true, noise_level: 1, blur_level: 1, applyAutopilotOnceCalculated: true, changesCount: 4 } });
        compare([preset.version, preset.name, preset.filterOrder, Object.keys(preset.controls).sort()], [1, "n", ["x"], ["changesCount", "x"]]);
        compare(preset.controls.x.params, row.params ?? given.params);
        compare(preset.controls.x.subjectSettings, row.subject ?? given.subjectSettings);
        compare(modified, row.modified);
        compare(JSON.stringify(given), before, "what was given stays");
        compare(Reduction.reduced(preset).preset, preset, "again changes nothing");
    }

    function test_damaged_data(): var {
        return [
            { tag: "empty", preset: {}, sound: false },
            { tag: "no order", preset: { controls: {} }, sound: false },
            { tag: "order without its filter", preset: preset({ filterOrder: ["Denoise", "Enhance"] }), sound: false },
            { tag: "filter without a category", preset: { filterOrder: ["a"], controls: { a: {} } }, sound: false },
            { tag: "numbers", preset: { filterOrder: 7, controls: "Denoise" }, sound: false },
            { tag: "whole", preset: preset(), sound: true }
        ];
    }

    function test_damaged(row): void {
        compare(Reduction.isSound(row.preset), row.sound);
        Reduction.reduced(row.preset); // reads anything
    }

    // Its name; which ones are free is shown by the dialogs

    function test_characters_data(): var {
        const rows = ["\\", "/", ":", "<", ">", "?", "*", "\"", "|", ".", "'", "&", "%", "ü", " "];
        return rows.map((character, i) => ({ tag: character, onWindows: i > 8, onMac: i > 5 }));
    }

    function test_characters(row): void {
        for (const mac of [false, true]) {
            isMac = mac;
            field.text = `a${row.tag}b`;
            compare(field.acceptableInput, mac ? row.onMac : row.onWindows);
        }
    }

    // The dialogs

    function test_keys_data(): var {
        return [
            { tag: "Return saves", types: "Mine", key: Qt.Key_Return, stored: ["Mine", "other"] },
            { tag: "Enter saves", types: "Mine", key: Qt.Key_Enter, stored: ["Mine", "other"] },
            { tag: "Escape doesn't", types: "Mine", key: Qt.Key_Escape, stored: ["other"] },
            { tag: "no name", types: "", key: Qt.Key_Return, stays: true, stored: ["other"] },
            { tag: "no slash gets in", types: "M/e", key: Qt.Key_Return, stored: ["Me", "other"] },
            { tag: "taken", types: "OTHER", key: Qt.Key_Return, stays: true, error: "A preset with that name already exists.", stored: ["other"] },
            { tag: "rename, same name", own: "mine", types: "mine", key: Qt.Key_Return, stored: ["mine", "other"] },
            { tag: "rename by case alone", own: "mine", types: "Mine", key: Qt.Key_Return, stays: true, error: "A preset with that name already exists.", stored: ["mine", "other"] },
            { tag: "rename", own: "mine", types: "new", key: Qt.Key_Return, stored: ["new", "other"] }
        ];
    }

    function test_keys(row): void {
        store.savePreset(preset({ name: "other" }));
        if (row.own)
            store.savePreset(preset({ name: row.own, filterOrder: ["RAW", "Denoise"], controls: { RAW: filter("RAW"), Denoise: filter("Denoise") } }));
        if (row.own)
            dialogs.rename(row.own);
        else
            dialogs.edit(preset());
        const editor = opened("presetEditor");
        compare(editor.title, row.own ? "Rename" : "New preset");
        tryCompare(part("presetName"), "activeFocus", true, 60000);
        compare(part("presetName").text, row.own ?? "");
        type(row.types);
        keyClick(row.key);
        if (row.stays)
            wait(50);
        else
            tryVerify(() => !editor.visible, 60000);
        compare(editor.visible, row.stays === true);
        compare(part("presetError").text, row.error ?? "");
        compare(part("presetName").activeFocus, row.stays === true);
        compare(names(), row.stored);
        const isSaved = !row.stays && row.key !== Qt.Key_Escape;
        compare(log.length, isSaved ? 1 : 0);
        if (isSaved) {
            const saved = store.getPreset(row.stored[0]);
            compare(saved.filterOrder, row.own ? ["Denoise"] : ["Denoise", "Sharpen"], "brought up to date");
        }
    }

    function test_preset_that_cannot_be_written_stays_open(): void {
        store.presetsDirectory = "/no/such/folder";
        dialogs.edit(preset());
        const editor = opened("presetEditor");
        keyClick("A");
        mouseClick(named(editor.footer, "Save"));
        verify(part("presetError").text.includes("/no/such/folder"), part("presetError").text);
        verify(editor.opened);
        compare([log, names()], [[], []], "nothing pretends to be saved");
        keyClick("B");
        compare(part("presetError").text, "");
        store.presetsDirectory = backends.appContext.presetsDirectory;
        keyClick(Qt.Key_Return);
        tryVerify(() => !editor.visible, 60000);
        compare([log, names()], [["saved AB"], ["AB"]]);
    }

    function test_click_beside_the_editor_closes_it(): void {
        dialogs.edit(preset());
        const editor = opened("presetEditor");
        keyClick("a");
        mouseClick(parts, 5, 300);
        tryVerify(() => !editor.visible, 60000);
        compare([names(), dialogQueue.count], [[], 0]);
    }

    function test_deleting_asks(): void {
        store.savePreset(preset({ name: "a&b" }));
        dialogs.askToDelete("a&b");
        let question = opened("deletePresetWarning");
        compare(question.messageText, "Are you sure you want to delete <i>a&amp;b</i>?");
        keyClick(Qt.Key_Return);
        tryVerify(() => !question.visible, 60000);
        compare(names(), ["a&b"], "Return is no assent");
        dialogs.askToDelete("a&b");
        question = opened("deletePresetWarning");
        mouseClick(named(question.footer, "Delete"));
        tryVerify(() => !question.visible, 60000);
        compare([names(), store.presets.length], [[], 0]);
    }

    function test_damaged_preset_is_not_renamed(): void {
        store.savePreset({ name: "broken" });
        dialogs.rename("broken");
        verify(log[0].includes("broken"), log[0]);
        compare(dialogQueue.count, 0);
    }
}
