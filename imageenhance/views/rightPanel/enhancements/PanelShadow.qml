pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI

// The shadow of a floating panel: a few boxes, each a little larger. An effect would keep a picture of the panel.
Item {
    id: _top

    readonly property int reach: 10
    readonly property int steps: 5

    anchors.fill: parent

    Repeater {
        model: _top.visible ? _top.steps : 0

        Rectangle {
            required property int index

            anchors { fill: parent; margins: -_top.reach * (index + 1) / _top.steps }
            radius: PebbleStyle.size.smallRadius - anchors.margins
            color: Qt.alpha(PebbleStyle.color._black, 0.25 / _top.steps)
        }
    }
}
