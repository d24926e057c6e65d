import QtQuick
import PebbleUI

// What stands inside a button: an icon and a text side by side. A text too long for the width is elided.
Item {
    id: _top

    required property url iconSource
    required property real iconWidth
    required property real iconHeight
    required property color iconColor
    required property string text
    required property color textColor
    required property int textType
    required property real spacing
    required property int layoutDirection
    required property bool center
    required property bool fill

    readonly property bool _hasIcon: iconSource.toString() !== ""
    readonly property real _iconSpace: _hasIcon ? iconWidth + (_label.visible ? spacing : 0) : 0
    readonly property real _textSpace: {
        const room = Math.max(0, width - _iconSpace);
        return fill ? room : Math.min(_label.implicitWidth, room);
    }

    implicitWidth: _iconSpace + (_label.visible ? _label.implicitWidth : 0)
    implicitHeight: Math.max(_hasIcon ? iconHeight : 0, _label.visible ? _label.implicitHeight : 0)

    Row {
        spacing: _top.spacing
        layoutDirection: _top.layoutDirection
        anchors.verticalCenter: parent.verticalCenter
        x: _top.center ? Math.round((_top.width - width) / 2)
                       : _top.layoutDirection === Qt.RightToLeft ? _top.width - width : 0

        PbIcon {
            iconSource: _top.iconSource
            iconWidth: _top.iconWidth
            iconHeight: _top.iconHeight
            color: _top.iconColor
            anchors.verticalCenter: parent.verticalCenter
        }

        PbText {
            id: _label
            visible: text !== ""
            text: _top.text
            type: _top.textType
            color: _top.textColor
            width: _top._textSpace
            horizontalAlignment: _top.center ? Text.AlignHCenter : Text.AlignLeft
            anchors.verticalCenter: parent.verticalCenter
        }
    }
}
