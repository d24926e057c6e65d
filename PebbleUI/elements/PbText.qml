import QtQuick
import PebbleUI

// Text in one of the library's roles, as part of a control that speaks for it. Plain text unless `textFormat`
// says otherwise. Not a label: those cost twice as much, and a tooltip consists of texts.
Text {
    id: _top

    // One of PbLabel.Type.
    property int type: PbLabel.Type.Body

    readonly property PbTextRole _role: PebbleStyle.font.ofType(type)

    color: enabled ? PebbleStyle.color.textLight : PebbleStyle.color.textDisabled
    linkColor: PebbleStyle.darkMode ? PebbleStyle.color.primeBlue : PebbleStyle.color.textLight
    textFormat: Text.PlainText
    elide: Text.ElideRight
    lineHeight: _role.lineHeight
    lineHeightMode: Text.FixedHeight
    verticalAlignment: Text.AlignVCenter
    font: _role.font
    renderType: Text.NativeRendering
}
