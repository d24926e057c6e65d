import QtQuick
import PebbleUI

// Text in one of the library's roles, with a tooltip. Plain text unless `textFormat` says otherwise: text from
// outside cannot become markup by accident.
PbText {
    id: _top

    enum Type { Heading, CTA, Title, Body, Footnote, Label }

    // True while the pointer is over a label that has a tooltip; may be set by whatever encloses it.
    property bool hovered: _tip.hovered
    property alias tooltip: _tip

    Accessible.ignored: false
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.description: tooltip.text

    PbHoverTip {
        id: _tip
    }
}
