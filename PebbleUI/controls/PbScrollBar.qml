import QtQuick
import QtQuick.Controls.Universal as Universal
import PebbleUI

// Based on the Universal style, whose bar is equally thick in both directions.
Universal.ScrollBar {
    id: _top

    property real barWidth: PebbleStyle.size.scrollBar

    minimumSize: PebbleStyle.size.scrollBarMinimum
    policy: Universal.ScrollBar.AsNeeded
    padding: PebbleStyle.size.spacingTiny
    visible: policy !== Universal.ScrollBar.AlwaysOff && size < 1
    implicitWidth: barWidth
    implicitHeight: barWidth
    Accessible.role: Accessible.ScrollBar
    Accessible.name: orientation === Qt.Vertical ? qsTr("Vertical scroll bar") : qsTr("Horizontal scroll bar")

    contentItem: Rectangle {
        radius: Math.min(width, height) / 2
        color: _top.pressed || _top.hovered ? PebbleStyle.color.lightGray : PebbleStyle.color.gray
    }
    background: null
}
