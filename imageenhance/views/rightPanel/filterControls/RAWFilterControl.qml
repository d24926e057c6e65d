import "../../../utils/filterModels.mjs" as Models

// The model and the strengths of the "RAW" filter; empty on an image that is not a RAW file.
FilterControl {
    id: _top

    readonly property string _model: record.model || Models.RAW_DEFAULT
    readonly property bool _linear: _model === Models.RAW_LINEAR
    readonly property var _keys: Models.rawKeys(_model)
    readonly property string _suggested: record.autoEnabled ? record.autoModel : ""
    readonly property bool _marked: _suggested === _model

    shown: controls.isRaw

    DismissibleNote {
        visible: !dismissed
        width: parent.width
        text: qsTr("RAW denoise is always applied first during RAW conversion for superior image quality.")
    }
    ModelSelector {
        control: _top
        entries: [
            { text: qsTr("RAW Normal"), value: "RAW Native", model: "RAW Native" },
            { text: qsTr("RAW Strong"), value: "RAW Standard", model: "RAW Standard" }
        ]
        columns: 2
        choosable: !_top._linear
        current: _top._model
        suggested: _top._suggested
        tip: _top._linear ? qsTr("The RAW Normal and RAW Strong models do not support this file, so a single specialized model is used.") : ""
        onChosen: model => _top.controls.setModel(_top.filterName, model)
    }
    FilterSlider {
        control: _top
        text: qsTr("Strength")
        key: _top._keys.strength
        fallback: _top._keys.fallback
        marked: _top._marked
        tooltip.text: qsTr("Controls the amount of noise removed from the image. Increasing this slider can remove fine details.")
    }
    FilterSlider {
        control: _top
        text: qsTr("Minor deblur")
        key: _top._keys.deblur
        fallback: _top._keys.fallback
        marked: _top._marked
        tooltip.text: qsTr("Controls a minor sharpening on the entire image. Use this slider to recover details that are lost during noise reduction.")
    }
    FilterSlider {
        control: _top
        visible: _top._model === Models.RAW_STRONG
        text: qsTr("Remove large grain")
        key: _top._keys.grain
        from: 0
        fallback: _top._keys.fallback
        marked: _top._marked
        tooltip.text: qsTr("Remove larger noise grain. Use this slider only when highest strength slider is not adequate, may only require if image shoot at extended ISO.")
    }
}
