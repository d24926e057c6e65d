pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI
import imageenhance

// The model, and how strongly it repairs what it enlarges.
Column {
    id: _top

    required property FilterControl control
    required property UpscaleModels models
    required property MainSettings settings
    property bool appleProcessor: false

    spacing: PebbleStyle.size.spacing

    PbLabel {
        id: _title
        type: PbLabel.Type.Title
        text: qsTr("AI model")
        enabled: !_top.control.locked
        tooltip.textFormat: Text.StyledText
        tooltip.text: [
            qsTr("The Resize models work best for the following images:<br><br>"),
            qsTr("<b>Standard</b>: most photographs, from cameras and phones.<br>"),
            qsTr("<b>High fidelity</b>: sharp photographs of high quality; keeps fine texture.<br>"),
            qsTr("<b>Graphics</b>: drawings, lettering and computer graphics.<br>"),
            qsTr("<b>Low resolution</b>: small, blurry or heavily compressed pictures.")
        ].join("")
        tooltip.target: _top
        tooltip.targetForY: _title
        tooltip.alignment: _top.control.tipSide
        tooltip.offsetX: _top.control.tipOffset

        TapHandler {
            enabled: !_top.control.locked
            onTapped: {
                if (_titleClicks.press(Date.now()))
                    _private.choose(Math.max(0, _top.models.indexOf(_top.models.autoModel)));
            }
        }
    }

    PbComboBox {
        id: _choice
        enabled: !_top.control.locked && count > 0
        model: _top.models.offered
        currentIndex: _top.models.current
        autoValue: _top.models.autoModel
        Accessible.name: qsTr("AI model")
        width: parent.width
        onActivated: index => _private.choose(index)
        // With new rows the toolkit goes to the first.
        onModelChanged: PbBoundProperty.write(_choice, "currentIndex", _top.models.indexOf(_top.models.resolution.model))
    }

    PbSwitch {
        objectName: "neuralEngine"
        visible: _top.appleProcessor && _top.models.usesNeuralEngine
        enabled: !_top.control.locked
        leftPadding: 0
        text: qsTr("Use Neural Engine")
        checked: _top.settings.useNeuralEngine
        onToggled: {
            _top.settings.useNeuralEngine = checked;
            _top.models.controls.setParam(_top.models.filterName, "useNeuralEngine", checked);
        }
    }

    StrengthSlider {
        id: _denoise
        key: "param1"
        text: qsTr("Minor denoise")
        tooltip.text: qsTr("Reduces noise before it is enlarged. Too high can remove detail.")
    }
    StrengthSlider {
        id: _deblur
        key: "param2"
        text: qsTr("Minor deblur")
        tooltip.text: qsTr("Slightly sharpens the image. Too high can exaggerate edges.")
    }
    StrengthSlider {
        id: _compression
        visible: _top.models.fixesCompression
        key: "param3"
        text: qsTr("Fix compression")
        tooltip.text: qsTr("Removes the blocks and fringes that strong compression leaves.")
    }

    component StrengthSlider: FilterSlider {
        control: _top.control
        marked: _top.models.autoModel === _top.models.resolution.model
    }

    PbDoublePress {
        id: _titleClicks
        interval: PebbleStyle.time.doublePress
    }

    QtObject {
        id: _private

        function choose(index: int): void {
            if (index < _top.models.offered.length)
                _top.models.choose(_top.models.offered[index].value, {
                    param1: _denoise.value / 100,
                    param2: _deblur.value / 100,
                    param3: _compression.value / 100
                });
        }
    }
}
