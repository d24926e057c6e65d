import "../../../utils/filterModels.mjs" as Models

// The model and the strengths of a "Denoise" filter.
FilterControl {
    id: _top

    readonly property string _model: record.model || Models.DENOISE_DEFAULT
    readonly property var _keys: Models.denoiseKeys(_model)
    readonly property string _suggested: record.autoEnabled ? record.autoModel : ""
    readonly property bool _marked: _suggested === _model

    ModelSelector {
        control: _top
        entries: [
            { text: qsTr("Normal"), value: "Low Light Beta", model: "Low Light Beta" },
            { text: qsTr("Strong"), value: "Severe Noise Beta", model: "Severe Noise Beta" },
            { text: qsTr("Extreme"), value: "Severe Noise", model: "Severe Noise" }
        ]
        columns: 3
        current: _top._model
        suggested: _top._suggested
        tip: qsTr("The Denoise models work best for the following images:<br><br>") + [
            qsTr("<b>Normal</b>: Low-medium noise."),
            qsTr("<b>Strong</b>: High noise."),
            qsTr("<b>Extreme</b>: Very high noise. Can remove fine details.")
        ].join("<br>")
        onChosen: model => _top.controls.setModel(_top.filterName, model)
    }
    FilterSlider {
        control: _top
        text: qsTr("Strength")
        key: _top._keys.strength
        fallback: _top._keys.fallback
        marked: _top._marked
        tooltip.text: qsTr("Reduces noise in the image. Too high can remove detail and slightly blur the image.")
    }
    FilterSlider {
        control: _top
        text: qsTr("Minor deblur")
        key: _top._keys.deblur
        fallback: _top._keys.fallback
        marked: _top._marked
        tooltip.text: qsTr("Slightly sharpens the image. Counteracts softness caused by noise reduction.")
    }
    FilterSlider {
        control: _top
        text: qsTr("Original detail")
        key: "recover_detail"
        from: 0
        fallback: 0
        marked: _top._marked
        alwaysWrites: true
        tooltip.text: qsTr("Return texture and fine details lost during noise reduction. Start at low values and slowly increase.")
    }
}
