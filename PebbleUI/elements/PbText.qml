import QtQuick
import QtQuick.Templates as T
import PebbleUI

// Text in one of the library's roles, as part of a control that speaks for it: a PbLabel without tooltip and
// accessible name. Plain text unless `textFormat` says otherwise.
T.Label {
    id: _top

    // One of PbLabel.Type.
    property int type: PbLabel.Type.Body

    readonly property PbTextRole _role: {
        switch (type) {
        case PbLabel.Type.Heading:
            return PebbleStyle.font.heading;
        case PbLabel.Type.CTA:
            return PebbleStyle.font.cta;
        case PbLabel.Type.Title:
            return PebbleStyle.font.title;
        case PbLabel.Type.Footnote:
            return PebbleStyle.font.footnote;
        case PbLabel.Type.Label:
            return PebbleStyle.font.label;
        default:
            return PebbleStyle.font.body;
        }
    }

    color: enabled ? PebbleStyle.color.textLight : PebbleStyle.color.textDisabled
    linkColor: PebbleStyle.darkMode ? PebbleStyle.color.primeBlue : PebbleStyle.color.textLight
    textFormat: Text.PlainText
    elide: Text.ElideRight
    lineHeight: _role.lineHeight
    lineHeightMode: Text.FixedHeight
    verticalAlignment: Text.AlignVCenter
    font {
        family: PebbleStyle.font.family
        pointSize: PebbleStyle.pointSize(_role.size)
        weight: _role.weight
        italic: _role.italic
        letterSpacing: _role.letterSpacing
    }
    renderType: Text.NativeRendering
    Accessible.ignored: true
}
