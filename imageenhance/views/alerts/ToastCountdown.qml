import QtQuick
import QtQuick.Controls.Fusion
import QtQuick.Shapes
import PebbleUI

// The button that takes a toast away, in a ring that closes while the toast's time passes.
AbstractButton {
    id: _top

    required property int timeout // milliseconds; no ring when not above 0
    required property bool held

    property real elapsed // fraction of the time

    signal over

    implicitWidth: 20
    implicitHeight: 20
    padding: 0
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Close")
    Keys.onReturnPressed: click()

    NumberAnimation on elapsed {
        running: _top.timeout > 0
        paused: running && (_top.held || _top.hovered)
        from: 0
        to: 1
        duration: Math.max(0, _top.timeout)
        onFinished: _top.over()
    }

    background: Item {
        PbFocusRing {
            target: _top
            targetRadius: _top.width / 2
        }
    }

    contentItem: Item {
        Shape {
            anchors.fill: parent
            visible: _top.timeout > 0
            preferredRendererType: Shape.CurveRenderer

            ShapePath {
                strokeWidth: 2
                strokeColor: PebbleStyle.color.gray
                fillColor: PebbleStyle.color.clear
                capStyle: ShapePath.RoundCap

                PathAngleArc {
                    centerX: _top.width / 2
                    centerY: _top.height / 2
                    radiusX: _top.width / 2 - 1
                    radiusY: radiusX
                    startAngle: -90
                    sweepAngle: 360 * _top.elapsed
                }
            }
        }
        PbIcon {
            anchors.centerIn: parent
            size: _top.timeout > 0 ? 12 : PebbleStyle.size.icon
            iconSource: PebbleStyle.icon.close
            color: _top.hovered || _top.down ? PebbleStyle.color.textHoverLight : PebbleStyle.color.textLight
        }
    }
}
