import QtQuick
import PebbleUI

// A note within a panel: an icon and a paragraph.
Rectangle {
    id: _top

    property alias text: _label.text
    property alias textFormat: _label.textFormat
    property alias iconSource: _icon.iconSource
    property alias iconColor: _icon.color
    property alias textColor: _label.color

    signal linkActivated(string link)

    implicitWidth: PebbleStyle.size.noteWidth
    implicitHeight: _label.implicitHeight + 2 * PebbleStyle.size.spacing
    radius: PebbleStyle.size.largeRadius
    color: PebbleStyle.color.noteBkg
    Accessible.role: Accessible.Note
    Accessible.name: text

    PbIcon {
        id: _icon
        x: PebbleStyle.size.spacing
        y: PebbleStyle.size.spacing
        iconSource: PebbleStyle.icon.info
        color: _label.color
    }

    PbLabel {
        id: _label
        anchors.fill: parent
        anchors.margins: PebbleStyle.size.spacing
        anchors.leftMargin: _icon.visible ? _icon.x + _icon.width + PebbleStyle.size.spacing : PebbleStyle.size.spacing
        color: PebbleStyle.color.textLight
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        verticalAlignment: Text.AlignTop
        Accessible.ignored: true
        onLinkActivated: link => _top.linkActivated(link)
    }
}
