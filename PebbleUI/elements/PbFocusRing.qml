import QtQuick
import QtQuick.Templates as T
import PebbleUI

// The ring round what has the focus. It lies outside its parent by a small gap, so that it shows
// on a filled button as well as on a bare one.
Rectangle {
    id: _top

    // The control whose focus is shown.
    required property Item target

    // True for fields that show the ring however they came by the focus.
    property bool always: false
    property real targetRadius: PebbleStyle.size.smallRadius

    readonly property real _outset: PebbleStyle.size.focusRingGap + PebbleStyle.size.focusRing

    function _byKeyboard(): bool {
        const control = target as T.Control;
        return control !== null && control.visualFocus;
    }

    anchors.fill: parent
    anchors.margins: -_outset
    radius: targetRadius + _outset
    color: PebbleStyle.color.clear
    border.width: PebbleStyle.size.focusRing
    border.color: PebbleStyle.color.focusRing
    visible: target.activeFocus && (always || _byKeyboard())
    z: 1
}
