import "../../../utils/filterModels.mjs" as Models

// The kind and the strengths of a "Sharpen" filter. A kind is a model, with or without "isLens", and a pair of
// strengths of its own, a copy of which the network gets: the noise as its first parameter, the blur as its second.
FilterControl {
    id: _top

    readonly property string categoryModel: Models.sharpenKindOf(record.model, record.params.isLens ?? false)

    readonly property var _kind: Models.sharpenKind(categoryModel)
    readonly property bool _autoLens: record.autoParams.isLens ?? false
    readonly property string _suggested: record.autoEnabled ? Models.suggestedSharpenKind(record.autoModel, _autoLens) : ""
    readonly property string _unmapped: record.autoEnabled && _suggested === "" ? record.autoModel : ""

    on_UnmappedChanged: {
        if (_unmapped !== "")
            console.warn("Could not map AP suggested model: '" + _unmapped + "'");
    }

    ModelSelector {
        control: _top
        entries: [["standard", qsTr("Standard")], ["strong", qsTr("Strong")], ["lensblur", qsTr("Lens blur")], ["motionblur", qsTr("Motion blur")]]
            .map(([value, text]) => ({ text, value, model: Models.sharpenKind(value).model }))
        columns: 2
        current: _top.categoryModel
        suggested: _top._suggested
        onChosen: kind => _top.controls.setParams(_top.filterName, Models.sharpenChoice(kind, _top.record.params))
    }
    FilterSlider {
        control: _top
        text: qsTr("Strength")
        key: _top._kind.blur
        mirrorKey: "param2"
        fallback: Models.SHARPEN_FALLBACK
        marked: _top._suggested === _top.categoryModel
        tooltip.text: qsTr("Increases details. Too much sharpening can create an unrealistic result.")
    }
    // Without Autopilot's mark, whatever it proposes.
    FilterSlider {
        control: _top
        visible: _top.categoryModel !== "strong"
        text: qsTr("Minor denoise")
        key: _top._kind.noise
        mirrorKey: "param1"
        fallback: Models.SHARPEN_FALLBACK
        marked: false
        tooltip.text: qsTr("Removes noisy pixels to increase clarity. Can slightly increase image sharpness.")
    }
}
