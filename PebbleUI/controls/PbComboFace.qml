import QtQuick
import PebbleUI

// What a closed choice shows: an icon and the text of the chosen row.
Item {
    id: _top

    required property url iconSource
    required property real iconSize
    required property string text
    required property int textAlignment
    required property int textElide

    implicitWidth: _label.x + _label.implicitWidth
    implicitHeight: Math.max(_icon.visible ? _icon.height : 0, _label.implicitHeight)

    PbIcon {
        id: _icon
        anchors.verticalCenter: parent.verticalCenter
        iconSource: _top.iconSource
        size: _top.iconSize
        color: _label.color
    }

    PbText {
        id: _label
        x: _top.iconSource.toString() !== "" ? _top.iconSize + PebbleStyle.size.spacing : 0
        width: _top.width - x
        height: _top.height
        text: _top.text
        horizontalAlignment: _top.textAlignment
        elide: _top.textElide
        enabled: _top.enabled
    }
}
