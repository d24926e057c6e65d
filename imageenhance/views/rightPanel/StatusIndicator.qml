pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Shapes
import PebbleUI

// The spinner, the ring of progress, or the icon of the status bar; one of them, or none.
Item {
    id: _top

    required property StatusRules rules
    required property color color

    visible: rules.showsSpinner || rules.showsProgress || rules.showsIcon
    width: PebbleStyle.size.icon
    height: width

    PbBusySpinner {
        anchors.centerIn: parent
        size: parent.width
        running: _top.rules.showsSpinner
    }

    Shape {
        anchors.fill: parent
        visible: _top.rules.showsProgress
        preferredRendererType: Shape.CurveRenderer

        Arc {
            strokeColor: Qt.alpha(_top.color, 0.3)
            sweep: 360
        }
        Arc {
            strokeColor: _top.color
            sweep: 3.6 * _top.rules.progress
        }
    }

    PbIcon {
        anchors.centerIn: parent
        visible: _top.rules.showsIcon
        iconSource: PebbleStyle.icon[_top.rules.iconRole] ?? ""
        color: _top.color
    }

    component Arc: ShapePath {
        id: _arc

        required property real sweep

        strokeWidth: 2
        fillColor: "transparent"
        capStyle: ShapePath.RoundCap

        PathAngleArc {
            centerX: _top.width / 2
            centerY: _top.height / 2
            radiusX: _top.width / 2 - 1
            radiusY: radiusX
            startAngle: -90
            sweepAngle: _arc.sweep
        }
    }
}
