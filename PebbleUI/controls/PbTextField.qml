pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import PebbleUI

// One line of text or a number. Numbers are written with a point, stepped with Up and Down, and selected
// whole when the field gets the keyboard.
T.TextField {
    id: _top

    enum Type { Text, Integer, Real }

    property int type: PbTextField.Type.Text
    property int decimals: type === PbTextField.Type.Real ? 2 : 0

    // True while the text is not acceptable to the validator, or refused by `validateInput`.
    property bool showError: !acceptableInput || !validateInput.call(_top, text)

    // (text) => bool
    property var validateInput: () => true

    property real incrementSize: 1 / Math.pow(10, decimals)
    property var increment: () => _private.step(incrementSize)
    property var decrement: () => _private.step(-incrementSize)
    property bool selectAllOnFocus: _private.isNumber
    property bool resetOnError: _private.isNumber

    readonly property alias numbers: _numbers

    implicitWidth: PebbleStyle.size.fieldWidth
    implicitHeight: PebbleStyle.size.fieldHeight
    leftPadding: PebbleStyle.size.fieldPadding
    rightPadding: PebbleStyle.size.fieldPadding
    topPadding: 0
    bottomPadding: 0
    horizontalAlignment: _private.isNumber ? TextInput.AlignRight : TextInput.AlignLeft
    renderType: TextInput.NativeRendering
    verticalAlignment: TextInput.AlignVCenter
    inputMethodHints: _private.isNumber ? Qt.ImhFormattedNumbersOnly : Qt.ImhNone
    selectByMouse: true
    validator: type === PbTextField.Type.Integer ? _integer : type === PbTextField.Type.Real ? _real : null

    color: enabled ? PebbleStyle.color.textLight : PebbleStyle.color.textDisabled
    placeholderTextColor: PebbleStyle.color.textQuiet
    selectionColor: PebbleStyle.color.primeBlue
    selectedTextColor: PebbleStyle.color.alwaysDark
    font: PebbleStyle.font.body.font
    Accessible.name: placeholderText

    background: PbBox {
        radius: PebbleStyle.size.smallRadius
        color: PebbleStyle.color.darkerGray
        border.width: _top.activeFocus || _top.showError ? PebbleStyle.size.focusRing : PebbleStyle.size.border
        border.color: _top.showError ? PebbleStyle.color.primeRed
                    : _top.activeFocus ? PebbleStyle.color.primeBlue : PebbleStyle.color.gray
    }

    onActiveFocusChanged: {
        if (!activeFocus) {
            const text = _rules.textWhenLeft(_top.text);
            if (text !== _top.text)
                PbBoundProperty.write(_top, "text", text);
            return;
        }
        _rules.entered(text);
        if (selectAllOnFocus) {
            selectAll();
            _private.selectOnRelease = focusReason === Qt.MouseFocusReason;
        }
    }

    // The press that brings the focus also moves the cursor, which undoes the selection.
    onReleased: {
        if (_private.selectOnRelease && selectedText === "")
            selectAll();
        _private.selectOnRelease = false;
    }

    Keys.onPressed: event => {
        if (_rules.leaves(event.key)) {
            event.accepted = true;
            if (event.key !== Qt.Key_Escape && acceptableInput)
                accepted();
            _top.focus = false;
        } else if (event.key === Qt.Key_Return) {
            event.accepted = true;
        } else if (_private.isNumber && (event.key === Qt.Key_Up || event.key === Qt.Key_Down)) {
            event.accepted = true;
            (event.key === Qt.Key_Up ? increment : decrement).call(_top);
        } else if (type === PbTextField.Type.Real && _numbers.isForeignPoint(event.text)) {
            event.accepted = true;
            remove(selectionStart, selectionEnd);
            insert(cursorPosition, ".");
        }
    }

    // The toolkit clips what a field draws, and so draws each by itself, which is expensive in a panel full of them.
    PbInk.shown: _private.inUse

    PbRestingText {
        objectName: "resting"
        field: _top
        inUse: _private.inUse
    }

    IntValidator {
        id: _integer
    }

    DoubleValidator {
        id: _real
        decimals: _top.decimals
        notation: DoubleValidator.StandardNotation
        locale: "C"
    }

    PbNumberText {
        id: _numbers
        decimals: _top.decimals
    }

    PbFieldRules {
        id: _rules
        isNumber: _private.isNumber
        showError: _top.showError
        resetOnError: _top.resetOnError
    }

    QtObject {
        id: _private

        readonly property bool isNumber: _top.type !== PbTextField.Type.Text
        readonly property bool inUse: _top.activeFocus || _top.selectedText !== ""
        property bool selectOnRelease: false

        function step(size: real): void {
            const value = _numbers.parse(_top.text);
            if (Number.isNaN(value)) {
                console.warn("Inc/Dec was requested, but current value is NaN");
                return;
            }
            PbBoundProperty.write(_top, "text", _numbers.format(value + size));
        }
    }
}
