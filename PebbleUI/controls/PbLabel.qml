import QtQuick
import QtQuick.Templates as T
import PebbleUI

// Text in one of the library's roles, with a tooltip. Plain text unless `textFormat` says otherwise: text from
// outside cannot become markup by accident.
T.Label {
    id: _top

    enum Type { Heading, CTA, Title, Body, Footnote, Label }

    property int type: PbLabel.Type.Body

    // True while the pointer is over a label that has a tooltip; may be set by whatever encloses it.
    property bool hovered: _tip.hovered
    property alias tooltip: _tip

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
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.description: _tip.text

    PbHoverTip {
        id: _tip
    }
}
