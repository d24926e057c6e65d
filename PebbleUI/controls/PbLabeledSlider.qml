import QtQuick
import PebbleUI

// A slider with its label and a text field; slider and field follow one another. A double click on the
// label sets the default value, whatever Autopilot says.
Item {
    id: _top

    enum Layout { Default, Horizontal }

    property int layout: PbLabeledSlider.Layout.Default
    property bool showTextField: true
    property int decimals: 0

    property alias value: _slider.value
    property alias defaultValue: _slider.defaultValue
    property alias autoValue: _slider.autoValue
    property alias from: _slider.from
    property alias to: _slider.to
    property alias stepSize: _slider.stepSize
    property alias gradient: _slider.gradient
    readonly property alias pressed: _slider.pressed
    readonly property bool modified: _slider.rules.modified

    property alias text: _label.text
    property alias tooltip: _label.tooltip
    readonly property alias label: _label
    readonly property alias slider: _slider
    readonly property alias textField: _field

    signal moved()
    signal editingFinished()

    readonly property bool _inRow: layout === PbLabeledSlider.Layout.Horizontal
    readonly property real _rowHeight: _inRow ? height : PebbleStyle.size.labeledSliderRow
    readonly property real _fieldSpace: showTextField ? _field.width + PebbleStyle.size.spacing : 0

    implicitWidth: PebbleStyle.size.labeledSliderWidth
    implicitHeight: PebbleStyle.size.labeledSliderHeight

    PbLabel {
        id: _label
        width: Math.min(implicitWidth, _top._inRow ? _top.width / 3 : _top.width - _top._fieldSpace - _dot.width)
        height: _top._rowHeight
        enabled: _top.enabled

        TapHandler {
            onTapped: {
                if (_labelClicks.press(Date.now()))
                    _private.userSets(_slider.defaultValue);
            }
        }
    }

    PbAutoPilotDot {
        id: _dot
        objectName: "autoDot"
        anchors.left: _label.right
        anchors.leftMargin: PebbleStyle.size.spacingSmall
        anchors.verticalCenter: _label.verticalCenter
        visible: _slider.rules.hasAuto && (PebbleStyle.darkMode || !modified)
        modified: _top.modified
    }

    PbTextField {
        id: _field
        anchors.right: parent.right
        width: PebbleStyle.size.labeledSliderField
        height: PebbleStyle.size.labeledSliderRow
        y: (_top._rowHeight - height) / 2
        leftPadding: PebbleStyle.size.spacingSmall
        rightPadding: PebbleStyle.size.spacingSmall
        visible: _top.showTextField
        type: _top.decimals > 0 ? PbTextField.Type.Real : PbTextField.Type.Integer
        decimals: _top.decimals
        validator: _top.decimals > 0 ? _decimalRange : _integer
        validateInput: text => _slider.isInRange(numbers.parse(text))
        increment: () => _private.step(incrementSize)
        decrement: () => _private.step(-incrementSize)
        resetOnError: true
        Accessible.name: _label.text

        Component.onCompleted: _private.showValue()
        onTextChanged: _private.followText()
        onActiveFocusChanged: {
            if (!activeFocus)
                _private.showValue();
        }
        onEditingFinished: _top.editingFinished()
    }

    PbSlider {
        id: _slider
        x: _top._inRow ? _dot.x + _dot.width + PebbleStyle.size.spacing : 0
        y: _top._inRow ? (_top.height - height) / 2 : _top._rowHeight
        width: _top.width - x - (_top._inRow ? _top._fieldSpace : 0)
        stepSize: Math.pow(10, -_top.decimals)
        Accessible.name: _label.text
        Accessible.description: _label.tooltip.text

        onValueChanged: {
            if (!_private.fromText)
                _private.showValue();
        }
        onMoved: _top.moved()
        onEditingFinished: _top.editingFinished()
    }

    PbDoublePress {
        id: _labelClicks
        interval: PebbleStyle.time.doublePress
    }

    IntValidator {
        id: _integer
    }

    // The upper end is 10 whatever `to` says: sliders with decimals are for small factors.
    DoubleValidator {
        id: _decimalRange
        top: 10
        decimals: _top.decimals
        notation: DoubleValidator.StandardNotation
        locale: "C"
    }

    QtObject {
        id: _private

        // While the text is what changes the slider, the slider leaves the text as it was typed.
        property bool fromText: false

        function followText(): void {
            const value = _field.numbers.parse(_field.text);
            if (!_field.acceptableInput || !_slider.isInRange(value) || !_field.numbers.differs(_field.text, _slider.value))
                return;
            fromText = true;
            PbBoundProperty.write(_slider, "value", value);
            fromText = false;
            _top.moved();
        }

        function showValue(): void {
            PbBoundProperty.write(_field, "text", _field.numbers.format(_slider.value));
        }

        function userSets(value: real): void {
            if (!_slider.isInRange(value))
                return;
            PbBoundProperty.write(_slider, "value", value);
            _top.moved();
            _top.editingFinished();
        }

        function step(size: real): void {
            const value = _field.numbers.parse(_field.text);
            if (Number.isNaN(value))
                console.warn("Inc/Dec was requested, but current value is NaN");
            else
                userSets(Math.max(_slider.from, Math.min(_slider.to, value + size)));
        }
    }
}
