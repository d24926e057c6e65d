pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import PebbleUI
import imageenhance

// The model, and how strongly it repairs what it enlarges.
ColumnLayout {
    id: _top

    required property UpscaleModels models
    required property MainSettings settings
    required property bool locked
    required property bool nearLeftEdge
    property bool appleProcessor: false

    spacing: PebbleStyle.size.spacing

    PbLabel {
        id: _title
        type: PbLabel.Type.Title
        text: qsTr("AI model")
        enabled: !_top.locked
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
        tooltip.alignment: _top.nearLeftEdge ? PbTooltipPlane.Alignment.Right : PbTooltipPlane.Alignment.Left
        tooltip.offsetX: _private.tipOffset

        TapHandler {
            enabled: !_top.locked
            onTapped: {
                if (_titleClicks.press(Date.now()))
                    _private.choose(Math.max(0, _top.models.indexOf(_top.models.autoModel)));
            }
        }
    }

    PbComboBox {
        id: _choice
        enabled: !_top.locked && count > 0
        model: _top.models.offered
        currentIndex: _top.models.current
        autoValue: _top.models.autoModel
        Accessible.name: qsTr("AI model")
        Layout.fillWidth: true
        onActivated: index => _private.choose(index)
        // With new rows the toolkit goes to the first.
        onModelChanged: PbBoundProperty.write(_choice, "currentIndex", _top.models.indexOf(_top.models.resolution.model))
    }

    PbSwitch {
        objectName: "neuralEngine"
        visible: _top.appleProcessor && _top.models.usesNeuralEngine
        enabled: !_top.locked
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
        param: "param1"
        text: qsTr("Minor denoise")
        tooltip.text: qsTr("Reduces noise before it is enlarged. Too high can remove detail.")
    }
    StrengthSlider {
        id: _deblur
        param: "param2"
        text: qsTr("Minor deblur")
        tooltip.text: qsTr("Slightly sharpens the image. Too high can exaggerate edges.")
    }
    StrengthSlider {
        id: _compression
        visible: _top.models.fixesCompression
        param: "param3"
        text: qsTr("Fix compression")
        tooltip.text: qsTr("Removes the blocks and fringes that strong compression leaves.")
    }

    component StrengthSlider: PbLabeledSlider {
        required property string param

        enabled: !_top.locked
        from: 1
        value: _top.models.percent(param)
        autoValue: _top.models.marked(param)
        defaultValue: Math.max(1, _top.models.suggested(param))
        tooltip.target: _top
        tooltip.targetForY: label
        tooltip.alignment: _top.nearLeftEdge ? PbTooltipPlane.Alignment.Right : PbTooltipPlane.Alignment.Left
        tooltip.offsetX: _private.tipOffset
        Layout.fillWidth: true
        onValueChanged: _top.models.setPercent(param, value)
    }

    PbDoublePress {
        id: _titleClicks
        interval: PebbleStyle.time.doublePress
    }

    QtObject {
        id: _private

        readonly property int tipOffset: _top.nearLeftEdge ? PebbleStyle.size.spacingLarge : -PebbleStyle.size.spacingLarge

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
