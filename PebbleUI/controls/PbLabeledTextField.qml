import QtQuick
import PebbleUI

// A field with its label on the left and its units on the right, in one frame.
Rectangle {
    id: _top

    property alias value: _field.text
    property string labelText: ""
    property string units: ""
    property alias valueType: _field.type
    property alias decimals: _field.decimals
    property alias validator: _field.validator
    property alias validateInput: _field.validateInput
    property alias showError: _field.showError
    property alias incrementSize: _field.incrementSize
    property alias increment: _field.increment
    property alias decrement: _field.decrement
    property alias selectAllOnFocus: _field.selectAllOnFocus
    property alias resetOnError: _field.resetOnError
    property alias placeholderText: _field.placeholderText
    property alias maximumLength: _field.maximumLength
    property alias readOnly: _field.readOnly
    readonly property alias acceptableInput: _field.acceptableInput
    readonly property alias inputFocus: _field.activeFocus
    readonly property alias field: _field

    signal accepted()
    signal editingFinished()
    signal textEdited()

    implicitWidth: PebbleStyle.size.fieldWidth
    implicitHeight: PebbleStyle.size.fieldHeight
    radius: PebbleStyle.size.smallRadius
    color: PebbleStyle.color.darkerGray
    opacity: enabled ? 1 : PebbleStyle.size.disabledOpacity
    border.width: _field.activeFocus || _field.showError ? PebbleStyle.size.focusRing : PebbleStyle.size.border
    border.color: _field.showError ? PebbleStyle.color.primeRed
                : _field.activeFocus ? PebbleStyle.color.primeBlue : PebbleStyle.color.gray

    TapHandler {
        onTapped: _field.forceActiveFocus(Qt.MouseFocusReason)
    }

    PbLabel {
        id: _label
        x: PebbleStyle.size.fieldPadding
        width: Math.min(implicitWidth, _top.width / 2)
        height: parent.height
        text: _top.labelText
        color: PebbleStyle.color.textQuiet
        Accessible.ignored: true
    }

    PbTextField {
        id: _field
        anchors.left: _label.right
        anchors.right: _units.left
        height: parent.height
        leftPadding: PebbleStyle.size.spacingSmall
        rightPadding: PebbleStyle.size.spacingSmall
        background: null
        Accessible.name: _top.labelText
        Accessible.description: _top.units
        onAccepted: _top.accepted()
        onEditingFinished: _top.editingFinished()
        onTextEdited: _top.textEdited()
    }

    PbLabel {
        id: _units
        anchors.right: parent.right
        anchors.rightMargin: PebbleStyle.size.fieldPadding
        width: implicitWidth
        height: parent.height
        text: _top.units
        color: PebbleStyle.color.textQuiet
        Accessible.ignored: true
    }
}
