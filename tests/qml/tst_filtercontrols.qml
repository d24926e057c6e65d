import QtQuick
import QtTest
import PebbleUI
import imageenhance

// What the controls of filters show of the model and write to it, by pointer and by keyboard.
WindowParts {
    id: parts

    name: "FilterControls"
    when: windowShown
    visible: true

    readonly property var catalogue: ({
        Denoise: ["Low Light Beta", "Severe Noise Beta", "Severe Noise"],
        Sharpen: ["Sharpen Standard", "Sharpen Standard v2", "Sharpen Strong"],
        RAW: ["Linear RAW", "RAW Native", "RAW Standard"],
        "Exposure Adjust": ["Exposure Standard"],
        "White Balance Adjust": ["White Balance Standard"]
    })
    property var control: null

    Component { id: denoise; DenoiseFilterControl { filterName: "Denoise2"; parentCategory: "Denoise" } }
    Component { id: sharpen; SharpenFilterControl { filterName: "Sharpen"; parentCategory: "Sharpen" } }
    Component { id: raw; RAWFilterControl { filterName: "RAW"; parentCategory: "RAW" } }
    Component { id: exposure; ExpoFilterControl { filterName: "Exposure Adjust"; parentCategory: "Exposure Adjust" } }
    Component { id: balance; WBFilterControl { filterName: "White Balance Adjust"; parentCategory: "White Balance Adjust" } }

    function initTestCase(): void {
        controls.setModelParamInfo(known(catalogue));
    }

    // A catalogue of these models, without parameters.
    function known(models: var): var {
        const empty = names => names.reduce((all, name) => Object.assign(all, { [name]: {} }), {});
        return Object.entries(models).reduce((all, [category, names]) => Object.assign(all, { [category]: empty(names) }), {});
    }

    // A control of a filter with these settings, on an image for which Autopilot answered this.
    function make(row: var): void {
        parts.open([row.type === raw && !row.notRaw ? "/a.dng" : "/a.jpg"]);
        control = createTemporaryObject(row.type, parts, Object.assign({ controls, locked: false, nearLeftEdge: false, x: 400, y: 100, width: 220 }, row.with));
        controls.initializeFilter(control.filterName, control.parentCategory);
        controls.setParams(control.filterName, Object.assign({ enabled: true }, row.stored));
        controls.setAutopilotSettings({ [control.parentCategory]: row.auto ?? {} });
        wait(0);
        log = [];
    }

    function filter(): var {
        return controls.currentControls[control.filterName];
    }

    function all(test: var): list<Item> {
        return items(control, test);
    }

    function slider(text: string): PbLabeledSlider {
        return all(item => item instanceof PbLabeledSlider && item.text === text)[0] ?? null;
    }

    function option(text: string): PbGridOption {
        return all(item => item instanceof PbGridOption && item.text === text)[0] ?? null;
    }

    function label(text: string): PbLabel {
        return all(item => item instanceof PbLabel && item.text === text)[0] ?? null;
    }

    function drag(text: string, value: int): void {
        const knob = slider(text).slider;
        const at = v => knob.handle.width / 2 + (v - knob.from) / (knob.to - knob.from) * (knob.width - knob.handle.width);
        mousePress(knob, at(knob.value), knob.height / 2);
        mouseMove(knob, at((knob.value + value) / 2), knob.height / 2);
        mouseMove(knob, at(value), knob.height / 2);
        mouseRelease(knob, at(value), knob.height / 2);
    }

    function enter(text: string, digits: string): void {
        mouseClick(slider(text).textField);
        type(digits);
        keyClick(Qt.Key_Return);
    }

    // What is chosen, which option and which sliders have Autopilot's mark, and what the sliders show.
    function test_shown_data(): var {
        const strengths = { param1_normalv2: 0.3, param2_normalv2: 0.4, param1_strongv2: 0.5, param2_strongv2: 0.6, param1: 0.7, param2: 0.8 };
        const kinds = { std_blur: 0.1, std_noise: 0.2, stg_blur: 0.3, slens_blur: 0.5, slens_noise: 0.6, smot_blur: 0.7, smot_noise: 0.8, smb_blur: 0.9, smb_noise: 0.95 };
        const normal = { enabled: true, model: "Low Light Beta", params: { param1_normalv2: 0.336, param2_normalv2: 0.001 } };
        const lens = { enabled: true, model: "Sharpen Standard", isLens: true, slens_blur: 0.5, slens_noise: 0.6 };
        const rows = {
            "denoise, nothing stored": { type: denoise, chosen: "Normal", values: [1, 1, 0] },
            "Normal": { type: denoise, stored: strengths, auto: normal, chosen: "Normal", values: [30, 40, 0], autoOption: "Normal", marks: [34, 1] },
            "Strong, other model suggested": { type: denoise, stored: Object.assign({ model: "Severe Noise Beta" }, strengths), auto: normal, chosen: "Strong", values: [50, 60, 0], autoOption: "Normal" },
            "Normal, not suggested": { type: denoise, stored: strengths, auto: Object.assign({}, normal, { enabled: false }), chosen: "Normal", values: [30, 40, 0] },
            "Extreme": { type: denoise, stored: Object.assign({ model: "Severe Noise", recover_detail: 0.2 }, strengths), chosen: "Extreme", values: [70, 80, 20] },
            "model that vanished": { type: denoise, stored: Object.assign({ model: "Gone" }, strengths), chosen: "", values: [30, 40, 0] },
            "Standard": { type: sharpen, stored: Object.assign({ model: "Sharpen Standard v2" }, kinds), auto: lens, chosen: "Standard", values: [10, 20], autoOption: "Lens blur" },
            "Strong, no denoise": { type: sharpen, stored: Object.assign({ model: "Sharpen Strong" }, kinds), chosen: "Strong", values: [30] },
            "Lens blur, mark of the blur alone": { type: sharpen, stored: Object.assign({ model: "Sharpen Standard", isLens: true }, kinds), auto: lens, chosen: "Lens blur", values: [50, 60], autoOption: "Lens blur", marks: [50] },
            "Motion blur": { type: sharpen, stored: Object.assign({ model: "Sharpen Standard", isLens: false }, kinds), auto: Object.assign({}, lens, { enabled: false }), chosen: "Motion blur", values: [70, 80] },
            "older motion blur": { type: sharpen, stored: Object.assign({ model: "Sharpen Motionblur" }, kinds), chosen: "", values: [90, 95] },
            "RAW Normal": { type: raw, stored: { model: "RAW Native", param1_native: 0.3, param3_standard: 0.2 }, chosen: "RAW Normal", values: [30, 1] },
            "RAW Strong": { type: raw, stored: { model: "RAW Standard", param1_standard: 0.4, param3_standard: 0 }, chosen: "RAW Strong", values: [40, 1, 0] },
            "RAW for one model": { type: raw, stored: { model: "Linear RAW", param1_native: 0.3, param1_standard: 0.4 }, chosen: "", values: [30, 1] },
            "RAW on another image": { type: raw, notRaw: true, chosen: "", values: [] },
            "exposure, nothing stored": { type: exposure, chosen: "", values: [50] },
            "exposure, mark always": { type: exposure, stored: { param1: -0.1 }, auto: { enabled: false, param1: -0.4 }, chosen: "", values: [-10], marks: [-25] },
            "balance, nothing stored": { type: balance, chosen: "", values: [50, 100] },
            "balance, marks always": { type: balance, stored: { temperature: 0.2 }, auto: { enabled: false, temperature: 0.4, strength: 1.4 }, chosen: "", values: [20, 100], marks: [40, 100] }
        };
        return tagged(rows);
    }

    function test_shown(row: var): void {
        make(row);
        const before = filter();
        const options = all(item => item instanceof PbGridOption);
        const sliders = all(item => item instanceof PbLabeledSlider);
        compare(options.filter(item => item.selected).map(item => item.text), row.chosen ? [row.chosen] : []);
        compare(options.filter(item => item.showAuto).map(item => item.text), row.autoOption ? [row.autoOption] : []);
        compare(sliders.map(item => item.value), row.values);
        compare(sliders.filter(item => item.slider.rules.hasAuto).map(item => item.autoValue), row.marks ?? []);
        compare(filter(), before, "showing writes nothing");
        compare(options.length, control.shown && row.stored?.model !== "Linear RAW" ? ({ Denoise: 3, Sharpen: 4, RAW: 2 })[control.parentCategory] ?? 0 : 0);
    }

    // What a user does, and what of the filter is then different.
    function test_written_data(): var {
        const kinds = { model: "Sharpen Standard v2", std_blur: 0.1, std_noise: 0.2, slens_blur: 0.5, slens_noise: 0.6 };
        const suggested = { enabled: true, model: "Severe Noise Beta", param1_normalv2: 0.4 };
        const rows = {
            "slider dragged": { type: denoise, act: () => drag("Strength", 60), params: { param1_normalv2: 0.6 } },
            "slider by key": { type: denoise, stored: { param1_normalv2: 0.372 }, act: () => press(slider("Strength").slider, Qt.Key_Right), params: { param1_normalv2: 0.38 } },
            "number typed": { type: denoise, act: () => enter("Minor deblur", "45"), params: { param2_normalv2: 0.45 } },
            "label of a slider": { type: denoise, stored: { param1_normalv2: 0.6 }, act: () => mouseDoubleClickSequence(slider("Strength").label), params: { param1_normalv2: 0.01 } },
            "slider back to Autopilot": { type: denoise, auto: { enabled: true, model: "Low Light Beta", param1_normalv2: 0.4 }, stored: { param1_normalv2: 0.6 }, act: () => press(slider("Strength").slider, Qt.Key_Delete), params: { param1_normalv2: 0.4 } },
            "within the rounding": { type: denoise, stored: { param1_normalv2: 0.37 }, act: () => controls.setParam("Denoise2", "param1_normalv2", 0.372), params: { param1_normalv2: 0.372 } },
            "detail whatever it is": { type: denoise, stored: { recover_detail: 0.2 }, act: () => controls.setParam("Denoise2", "recover_detail", 0.372), params: { recover_detail: 0.37 } },
            "model": { type: denoise, act: () => mouseClick(option("Strong")), model: "Severe Noise Beta" },
            "model by key": { type: denoise, act: () => { press(option("Normal"), Qt.Key_Right); keyClick(Qt.Key_Space); }, model: "Severe Noise Beta" },
            "model back to Autopilot": { type: denoise, auto: suggested, act: () => mouseDoubleClickSequence(label("AI model")), model: "Severe Noise Beta" },
            "model back by key": { type: denoise, stored: { model: "Severe Noise" }, act: () => press(option("Strong"), Qt.Key_Backspace), model: "Low Light Beta" },
            "locked": { type: denoise, with: { locked: true }, act: () => { drag("Strength", 60); mouseClick(option("Strong")); mouseDoubleClickSequence(label("AI model")); }, params: {} },
            "kind": { type: sharpen, stored: kinds, act: () => mouseClick(option("Lens blur")), model: "Sharpen Standard", params: { param1: 0.6, param2: 0.5, isLens: true } },
            "kind without strengths": { type: sharpen, stored: kinds, act: () => mouseClick(option("Strong")), model: "Sharpen Strong", params: { param1: 0.01, param2: 0.01, isLens: false } },
            "strength of a kind": { type: sharpen, stored: kinds, act: () => drag("Strength", 40), params: { param2: 0.4, std_blur: 0.4 } },
            "denoise of a kind": { type: sharpen, stored: kinds, act: () => drag("Minor denoise", 40), params: { param1: 0.4, std_noise: 0.4 } },
            "model of a RAW file": { type: raw, stored: { model: "RAW Native" }, act: () => mouseClick(option("RAW Strong")), model: "RAW Standard" },
            "the one model of a RAW file stays": { type: raw, stored: { model: "Linear RAW" }, act: () => mouseDoubleClickSequence(label("AI model")), params: {} },
            "exposure at its least": { type: exposure, act: () => enter("Strength", "-25"), params: { param1: -0.25 } },
            "exposure between percents, below zero": { type: exposure, act: () => controls.setParam("Exposure Adjust", "param1", -0.104), params: { param1: -0.1 } },
            "temperature": { type: balance, act: () => drag("Temperature", 80), params: { temperature: 0.8 } },
            "filter that was removed": { type: balance, act: () => { controls.removeFilterControl("White Balance Adjust"); drag("Opacity", 40); }, gone: true }
        };
        return tagged(rows);
    }

    function test_written(row: var): void {
        make(row);
        const before = filter();
        row.act();
        wait(0);
        if (row.gone) {
            compare(filter(), undefined);
            return;
        }
        compare(filter().model, row.model ?? before.model);
        compare(filter().params, Object.assign({}, before.params, row.params));
    }

    function test_models_keep_their_strengths_and_sliders_follow(): void {
        make({ type: denoise });
        drag("Strength", 60);
        mouseClick(option("Strong"));
        compare(slider("Strength").value, 1);
        enter("Strength", "20");
        mouseClick(option("Normal"));
        compare(slider("Strength").value, 60);
        mouseClick(option("Strong"));
        compare(slider("Strength").value, 20);
        controls.setParam("Denoise2", "param1_strongv2", 0.9);
        compare([slider("Strength").value, slider("Strength").textField.text], [90, "90"], "after the user moved it");
    }

    function test_models_that_the_catalogue_lacks_are_not_offered(): void {
        controls.setModelParamInfo(known(Object.assign({}, catalogue, { Denoise: ["Low Light Beta", "Severe Noise"] })));
        make({ type: denoise, stored: { model: "Severe Noise Beta", param1_strongv2: 0.5 } });
        compare([option("Strong"), option("Normal").selected, slider("Strength").value], [null, false, 50]);
        controls.setModelParamInfo(known(catalogue));
        verify(option("Strong").selected);
    }

    function test_model_that_no_kind_writes_is_logged_once(): void {
        ignoreWarning("Could not map AP suggested model: 'Sharpen Gone'");
        make({ type: sharpen, auto: { enabled: true, model: "Sharpen Gone" } });
        drag("Strength", 40);
        verify(all(item => item instanceof PbGridOption && item.showAuto).length === 0);
    }

    function test_tooltips_are_beside_the_panel_data(): var {
        return [{ tag: "left", nearLeftEdge: false }, { tag: "right", nearLeftEdge: true }];
    }

    function test_tooltips_are_beside_the_panel(row: var): void {
        make({ type: denoise, with: { nearLeftEdge: row.nearLeftEdge, x: row.nearLeftEdge ? 16 : 600 } });
        for (const item of [label("AI model"), slider("Strength").label]) {
            mouseMove(parts, 450, 690);
            tryCompare(plane, "currentTip", null);
            mouseMove(item);
            tryVerify(() => plane.currentTip !== null);
            const tip = plane.currentTip;
            compare(row.nearLeftEdge ? tip.x : tip.x + tip.width, row.nearLeftEdge ? 16 + 220 + 26 : 600 - 26);
        }
        plane.hideCurrentTip();
        press(option("Normal"), Qt.Key_Right);
        tryVerify(() => plane.currentTip !== null, 5000, "where the keyboard is");
    }

    function test_note_is_dismissed_until_the_panel_is_made_anew(): void {
        make({ type: raw, stored: { model: "RAW Native" } });
        const dismiss = () => all(item => item instanceof PbButton)[0] ?? null;
        const height = control.implicitHeight;
        press(dismiss(), Qt.Key_Space);
        compare(dismiss(), null);
        tryVerify(() => control.implicitHeight < height);
        verify(option("RAW Normal").activeFocus);
        make({ type: raw, stored: { model: "RAW Native" } });
        verify(dismiss());
    }
}
