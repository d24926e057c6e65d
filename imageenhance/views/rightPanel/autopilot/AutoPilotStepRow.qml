import QtQuick
import PebbleUI

// A sign and a text beside it; the sign alone in a collapsed column.
Item {
    id: _top

    required property string text
    required property bool collapsed
    property bool emphasized: false
    property color color: PebbleStyle.color.textLight
    default property alias sign: _sign.data
    readonly property alias signItem: _sign

    implicitHeight: 44
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Item {
        id: _sign

        x: _top.collapsed ? Math.round((_top.width - width) / 2) : PebbleStyle.size.spacingLarge
        anchors.verticalCenter: parent.verticalCenter
        width: PebbleStyle.size.icon
        height: width
    }
    PbText {
        anchors { left: _sign.right; leftMargin: PebbleStyle.size.spacing; right: parent.right; rightMargin: PebbleStyle.size.spacingLarge; verticalCenter: parent.verticalCenter }
        visible: !_top.collapsed
        text: _top.text
        color: _top.color
        type: _top.emphasized ? PbLabel.Type.Title : PbLabel.Type.Body
        wrapMode: Text.Wrap
        maximumLineCount: 2
    }
}
