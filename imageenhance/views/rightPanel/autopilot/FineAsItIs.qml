import QtQuick
import PebbleUI

// Autopilot has looked and recommends nothing: the photograph is fine as it is. A sign alone in a collapsed column.
Rectangle {
    id: _top

    required property string detail // what was measured; may be empty
    property bool collapsed: false

    readonly property string title: qsTr("This photograph is fine as it is")
    readonly property string text: qsTr("Autopilot found nothing that needs work; anything you would like to change can be added by hand.")
    readonly property int _margin: PebbleStyle.size.spacingLarge

    implicitHeight: collapsed ? width : _texts.implicitHeight + 2 * _margin
    radius: PebbleStyle.size.largeRadius
    color: PebbleStyle.color.clear
    border.width: collapsed ? 0 : PebbleStyle.size.border
    border.color: PebbleStyle.color.darkGray
    Accessible.role: Accessible.Grouping
    Accessible.name: title
    Accessible.description: detail !== "" ? text + " " + detail : text

    PbIcon {
        id: _icon
        x: _top.collapsed ? Math.round((_top.width - width) / 2) : _top._margin
        y: _top.collapsed ? Math.round((_top.height - height) / 2) : _top._margin
        iconSource: PebbleStyle.icon.success
        color: PebbleStyle.color.primeGreen
    }
    Column {
        id: _texts

        anchors { left: _icon.right; leftMargin: PebbleStyle.size.spacing; right: parent.right; rightMargin: _top._margin; top: parent.top; topMargin: _top._margin }
        visible: !_top.collapsed
        spacing: PebbleStyle.size.spacingSmall

        Line {
            type: PbLabel.Type.Title
            text: _top.title
        }
        Line {
            text: _top.text
        }
        Line {
            visible: text !== ""
            text: _top.detail
            color: PebbleStyle.color.lighterGray
        }
    }
    PbHoverTip {
        title: _top.collapsed ? _top.title : ""
        text: _top.collapsed ? _top.detail : ""
        alignment: PbTooltipPlane.Alignment.Left
    }

    component Line: PbText {
        width: parent.width
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }
}
