pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI

// One tooltip: a title, a text, or both. As wide as its content when hugging, but never wider than usual.
Rectangle {
    id: _top

    property alias title: _title.text
    property alias text: _text.text
    property alias textFormat: _text.textFormat
    property bool hugContents: false

    readonly property real _gap: title !== "" && text !== "" ? PebbleStyle.size.spacingSmall : 0
    readonly property real _room: PebbleStyle.size.tipWidth - 2 * PebbleStyle.size.tipMargin
    readonly property real _content: hugContents
        ? Math.min(_room, Math.ceil(Math.max(_title.implicitWidth, _text.implicitWidth)))
        : _room

    component Line: PbText {
        x: PebbleStyle.size.tipMargin
        width: _top._content
        visible: text !== ""
        color: PebbleStyle.color.textLight
        elide: Text.ElideNone
        wrapMode: Text.Wrap
        verticalAlignment: Text.AlignTop
    }

    width: _content + 2 * PebbleStyle.size.tipMargin
    height: (title !== "" ? _title.height : 0) + _gap + (text !== "" ? _text.height : 0)
            + 2 * PebbleStyle.size.tipMargin
    radius: PebbleStyle.size.largeRadius
    color: PebbleStyle.color.black
    border.width: PebbleStyle.size.border
    border.color: PebbleStyle.color.tipBorder
    Accessible.role: Accessible.ToolTip
    Accessible.name: title !== "" ? title : text
    Accessible.description: title !== "" ? text : ""

    Line {
        id: _title
        y: PebbleStyle.size.tipMargin
        type: PbLabel.Type.Title
    }

    Line {
        id: _text
        y: PebbleStyle.size.tipMargin + (_top.title !== "" ? _title.height + _top._gap : 0)
    }
}
