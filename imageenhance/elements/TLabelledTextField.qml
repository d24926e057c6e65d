pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI
import TImageSettings

// A number with its label and unit in one frame. What is typed counts when the field is left: out of the limits, or as
// it was, it is dropped.
PbBox {
    id: _top

    property real value: 0 // shown without its sign
    property real minValue: 0
    property real maxValue: 32000
    property int decimals: 0
    property string label: ""
    property string unit: "" // "PX", "IN" and "CM" can be chosen
    property bool highlight: false
    property string accessibleName: label

    readonly property alias inputFocus: _field.activeFocus
    readonly property bool invalid: inputFocus && !_private.accepts(_field.text)
    readonly property alias text: _field.text

    // Of a valid text that is not the one shown before.
    signal editingFinished(string text)
    // Of TImageSettings.ResolutionUnit
    signal updateResolutionUnit(int unit)

    function takeFocus(): void {
        _field.forceActiveFocus(Qt.OtherFocusReason);
    }

    implicitWidth: PebbleStyle.size.fieldWidth
    implicitHeight: PebbleStyle.size.fieldHeight
    radius: PebbleStyle.size.smallRadius
    color: PebbleStyle.color.darkerGray
    border.width: inputFocus ? PebbleStyle.size.focusRing : highlight ? PebbleStyle.size.border : 0
    border.color: invalid ? PebbleStyle.color.primeRed : enabled ? PebbleStyle.color.primeBlue : PebbleStyle.color.gray
    onValueChanged: _private.showValue()
    onDecimalsChanged: _private.showValue()
    Component.onCompleted: _private.showValue()

    TapHandler {
        onTapped: _field.forceActiveFocus(Qt.MouseFocusReason)
    }

    PbText {
        id: _label
        x: PebbleStyle.size.fieldPadding
        height: parent.height
        text: _top.label
        color: enabled ? PebbleStyle.color.textQuiet : PebbleStyle.color.textDisabled
    }

    PbTextField {
        id: _field
        anchors.left: _label.right
        anchors.right: _unitLoader.left
        height: parent.height
        leftPadding: PebbleStyle.size.spacingSmall
        rightPadding: PebbleStyle.size.spacingSmall
        background: null
        type: _top.decimals > 0 ? PbTextField.Type.Real : PbTextField.Type.Integer
        decimals: _top.decimals
        validateInput: text => _private.accepts(text)
        resetOnError: false
        increment: () => _private.step(incrementSize)
        decrement: () => _private.step(-incrementSize)
        Accessible.name: _top.accessibleName
        Accessible.description: _top.unit
        onActiveFocusChanged: {
            if (activeFocus)
                return;
            const typed = text;
            const counts = typed !== _private.shownText && _private.accepts(typed);
            _private.showValue();
            if (counts)
                _top.editingFinished(typed);
        }
    }

    Loader {
        id: _unitLoader
        anchors.right: parent.right
        anchors.rightMargin: PebbleStyle.size.focusRing // the border is not covered
        y: PebbleStyle.size.focusRing
        height: parent.height - 2 * y
        sourceComponent: _private.units.includes(_top.unit) ? _selector : _fixedUnit
    }

    Component {
        id: _fixedUnit

        PbText {
            rightPadding: PebbleStyle.size.fieldPadding
            text: _top.unit
            color: enabled ? PebbleStyle.color.textQuiet : PebbleStyle.color.textDisabled
        }
    }

    Component {
        id: _selector

        TUnitSelector {
            unit: _top.unit
            units: _private.units
            Accessible.name: qsTr("%1, unit").arg(_top.accessibleName)
            onChosen: index => _top.updateResolutionUnit([TImageSettings.Pixels, TImageSettings.Inches, TImageSettings.Centimeters][index])
        }
    }

    QtObject {
        id: _private

        readonly property list<string> units: ["PX", "IN", "CM"]
        property string shownText: ""

        function showValue(): void {
            shownText = _field.numbers.format(Math.abs(_top.value));
            _field.text = shownText;
        }

        // A limit may be cut off or rounded where it is shown: what it looks like is always accepted.
        function accepts(text: string): bool {
            const number = _field.numbers.parse(text);
            const slack = _top.decimals > 0 ? Math.pow(10, -_top.decimals - 1) : 0;
            return number >= _top.minValue && number <= _top.maxValue + slack || looksLike(number, _top.minValue) || looksLike(number, _top.maxValue);
        }

        function looksLike(number: real, limit: real): bool {
            return !Number.isNaN(number) && _field.numbers.format(number) === _field.numbers.format(limit);
        }

        function step(size: real): void {
            const value = _field.numbers.parse(_field.text);
            if (!Number.isNaN(value))
                _field.text = _field.numbers.format(Math.max(_top.minValue, Math.min(_top.maxValue, value + size)));
        }
    }
}
