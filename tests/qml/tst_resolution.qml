import QtQuick
import QtTest
import PebbleUI
import TImageSettings
import imageenhance

WindowParts {
    id: parts

    name: "Resolution"
    when: windowShown
    visible: true

    ResolutionState {
        id: resolution
        controls: parts.controls
        filterName: "Enhance"
        parentCategory: "Enhance"
        settings: parts.settings
        originalSize: parts.windowState.inputSize
        cropRect: parts.windowState.currentCropRect
        loading: parts.windowState.isLoading
        pluginDisplayName: ""
        resizingSupported: true
        psAutomate: false
        onEstimateFileSize: parts.log.push("estimate")
    }
    ResolutionFilterControl {
        id: control
        width: 220
        height: implicitHeight
        z: 1
        controls: parts.controls
        filterName: "Enhance"
        parentCategory: "Enhance"
        resolution: resolution
        settings: parts.settings
        locked: false
        nearLeftEdge: false
    }

    function initTestCase(): void {
        parts.controls.modelParamInfo = { Enhance: { "CGI": {}, "High Fidelity": {}, "Standard": {}, "Standard V2": {} } };
        parts.backends.advise({ Enhance: { enabled: false, model: "Standard", param1: 0.3 } });
    }

    function init(): void {
        parts.open(["/a.jpg"]);
        parts.controls.initializeFilter("Enhance", "Enhance");
        parts.controls.setParams("Enhance", { enabled: true, model: "Standard", param1: 0.37, param2: 0.2, param3: 0.5 });
        parts.controls.setFilterOrder(["Enhance"]);
        parts.settle();
        parts.forget();
        parts.log = [];
    }

    function typeInto(field: string, text: string, key: int): void {
        mouseClick(item(control, "accessibleName", field));
        type(text);
        keyClick(key);
        parts.turns();
    }

    function params(): var {
        return parts.controls.currentControls.Enhance.params;
    }

    function size(): var {
        return [params().scale, params().width, params().height, params().mode];
    }

    function test_typed_data(): var {
        return [
            { tag: "width", field: "Width", text: "2000", expect: [2, 2000, 1600, "width"] },
            { tag: "height", field: "Height", text: "400", expect: [0.5, 500, 400, "height"] },
            { tag: "scale", field: "Scale", text: "3.5", expect: [3.5, 3500, 2800, "scale"] },
            { tag: "largest", field: "Width", text: "6000", expect: [6, 6000, 4800, "width"] },
            { tag: "width below the least", field: "Width", text: "199" },
            { tag: "height above the most", field: "Height", text: "4801" },
            { tag: "scale above the most", field: "Scale", text: "6.1" },
            { tag: "no number", field: "Scale", text: "." },
            { tag: "the same again", field: "Width", text: "1000" }
        ];
    }

    function test_typed(row): void {
        typeInto(row.field, row.text, Qt.Key_Enter);
        const runs = parts.runs();
        compare(size(), row.expect ?? [1, 1000, 800, "scale"]);
        compare(parts.log, row.expect ? ["estimate"] : []);
        compare(runs.map(run => [run.params.Enhance.params.scale, run.params.Enhance.params.updated]), row.expect ? [[row.expect[0], false]] : []);
        const field = item(control, "accessibleName", row.field);
        compare([field.inputFocus, field.text], [false, field.value.toFixed(field.decimals)]);
        compare(item(control, "accessibleName", "Width").highlight, size()[3] === "width");
    }

    function test_shortcuts(): void {
        const button = text => item(control, "text", text);
        for (const [text, scale] of [["2x", 2], ["4x", 4], ["Max", 6], ["1x", 1]]) {
            mouseClick(button(text));
            compare(size(), [scale, 1000 * scale, 800 * scale, "scale"]);
            compare(["1x", "2x", "4x"].filter(other => button(other).selected), text === "Max" ? [] : [text]);
            compare(button("Custom").selected, text === "Max");
        }
        mouseClick(button("Custom"));
        verify(button("Custom").selected && !button("1x").selected && item(control, "accessibleName", "Scale").inputFocus);
        keyClick(Qt.Key_Escape);
        verify(button("1x").selected);
        parts.controls.setCrop(Qt.rect(0, 0, 1, 1), 0);
        parts.backends.addFile("/large.jpg", 8000, 100);
        parts.controls.loadImages(["/large.jpg"]);
        parts.settle();
        parts.controls.initializeFilter("Enhance", "Enhance");
        parts.controls.propagateControlChanges();
        parts.settle();
        compare([resolution.maxScale, !!button("2x"), !!button("4x"), !!button("Custom")], [4, true, false, false]);
        compare(size(), [1, 8000, 100, "scale"]);
    }

    function test_units(): void {
        typeInto("Width", "1440", Qt.Key_Return);
        const choose = (field, key) => {
            item(item(control, "accessibleName", field), "currentIndex", resolution.resolutionUnit - 1).forceActiveFocus(Qt.TabFocusReason);
            keyClick(key);
            parts.settle();
            return [params().resolutionUnit, parts.settings.resolutionUnit, Math.round(params().resolution * 100) / 100, item(control, "accessibleName", "Width").text];
        };
        compare(choose("Width", Qt.Key_Down), [TImageSettings.Inches, TImageSettings.Inches, 72, "20.000"]);
        compare(choose("Height", Qt.Key_Down), [TImageSettings.Centimeters, TImageSettings.Centimeters, 28.35, "50.800"]);
        fuzzyCompare(parts.controls.currentImageData.resolution, 72 / 2.54, 1e-4);
        compare(params().width, 1440);
        typeInto("Width", "25.4", Qt.Key_Enter);
        fuzzyCompare(params().width, 720, 1e-6);
        typeInto("Resolution", "0.5", Qt.Key_Enter);
        fuzzyCompare(params().resolution, 72 / 2.54, 1e-6);
        typeInto("Resolution", "100", Qt.Key_Enter);
        compare([params().resolution, Math.round(params().width)], [100, 720]);
        compare(choose("Width", Qt.Key_Up), [TImageSettings.Inches, TImageSettings.Inches, 254, "2.835"]);
        compare(choose("Width", Qt.Key_Up), [TImageSettings.Pixels, TImageSettings.Pixels, 254, "720"]);
    }

    function test_crop_leaves_what_the_user_fixed(): void {
        typeInto("Width", "2000", Qt.Key_Enter);
        parts.settle();
        parts.controls.forgetEdits();
        parts.log = [];
        parts.controls.setCrop(Qt.rect(0, 0, 0.5, 1), 0);
        parts.settle();
        compare(size(), [4, 2000, 3200, "width"]);
        compare(parts.log, ["estimate"]);
        compare([parts.controls.undoEdit(), size(), parts.controls.canUndo], [true, [2, 2000, 1600, "width"], false], "crop and size are one step");
        parts.controls.redoEdit();
        parts.settle();
        parts.controls.setCrop(Qt.rect(0, 0, 0.1, 1), 0);
        parts.settle();
        compare(size(), [6, 600, 4800, "width"]);
    }

    function test_same_state_writes_nothing(): void {
        typeInto("Width", "1333", Qt.Key_Enter);
        parts.settle();
        parts.log = [];
        parts.controls.propagateControlChanges();
        parts.controls.setCrop(Qt.rect(0, 0, 1, 1), 0);
        resolution.applyUpscaleLimitsToResizeControls();
        parts.reader.reload();
        parts.settle();
        compare(parts.log, []);
        parts.backends.addFile("/wide.jpg", 4000, 100);
        parts.controls.loadImages(["/wide.jpg"]);
        parts.settle();
        parts.controls.setCurrentIndex(0);
        parts.settle();
        compare([parts.log, params().width, resolution.width], [[], 1333, 1333], "the other picture's size is not taken");
    }

    function test_removed_filter_stays_away(): void {
        const isThere = () => "Enhance" in parts.controls.currentControls;
        parts.controls.setParam("Enhance", "scale", 3); // a write waits for the next turn
        parts.controls.removeFilterControl("Enhance");
        resolution.setScale(2);
        parts.settle();
        verify(!isThere());
        compare(parts.log, []);
    }

    function test_model_takes_the_strengths_along(): void {
        const slider = param => item(control, "key", param);
        compare([slider("param1").value, slider("param2").value, slider("param3").value], [37, 20, 50]);
        parts.controls.setParam("Enhance", "param1", 0.372);
        compare([slider("param1").value, params().param1], [37, 0.372]);
        slider("param1").slider.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        compare(params().param1, 0.38);
        const choice = item(control, "textRole", "text");
        compare(choice.displayText, "Standard (v1)");
        compare(choice.model.map(model => model.value), ["Standard V2", "CGI", "Standard", "High Fidelity"]);
        choice.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Up);
        compare([parts.controls.currentControls.Enhance.model, params().param1, params().param2, params().param3], ["CGI", 0.38, 0.2, 0.5]);
        compare(slider("param3"), null);
        for (const press of [1, 2])
            mouseClick(item(control, "text", "AI model"));
        compare(parts.controls.currentControls.Enhance.model, "Standard V2", "without a suggestion the first one");
    }

    function test_locked(): void {
        control.locked = true;
        typeInto("Width", "2000", Qt.Key_Enter);
        mouseClick(item(control, "text", "2x"));
        control.locked = false;
        compare(size(), [1, 1000, 800, "scale"]);
    }
}
