import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI

// Text in one of the library's roles. Plain text unless `textFormat` says otherwise: text from outside
// cannot become markup by accident.
Label {
    id: _top

    enum Type { Heading, CTA, Title, Body, Footnote, Label }

    property int type: PbLabel.Type.Body

    // True while the pointer is over a label that has a tooltip; may be set by whatever encloses it.
    property bool hovered: _tip.hovered
    property alias tooltip: _tip

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
    linkColor: PebbleStyle.color.primeBlue
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
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.description: tooltip.text

    PbHoverTip {
        id: _tip
    }
}
