import QtQuick
import QtQuick.Shapes
import PebbleUI

// The panel's ground and its pointer, which lies outside it on the right. Keeps the pointer's events from what is below.
Item {
    id: _top

    required property real pointerY // its middle

    readonly property real _half: PebbleStyle.size.pivotWidth / 2

    Rectangle {
        anchors.fill: parent
        radius: PebbleStyle.size.largeRadius
        color: PebbleStyle.color.darkerGray
        border.width: PebbleStyle.size.border
        border.color: PebbleStyle.color.gray
    }

    Shape {
        id: _pointer

        // Reaches one border's width into the panel, to cover its edge.
        x: _top.width - PebbleStyle.size.border
        y: {
            const clear = PebbleStyle.size.largeRadius + _top._half;
            return Math.round(Math.max(clear, Math.min(_top.pointerY, _top.height - clear)) - _top._half);
        }
        preferredRendererType: Shape.CurveRenderer

        ShapePath {
            fillColor: PebbleStyle.color.darkerGray
            strokeColor: PebbleStyle.color.gray
            strokeWidth: PebbleStyle.size.border

            PathLine {
                x: PebbleStyle.size.pivotHeight
                y: _top._half
            }
            PathLine {
                x: 0
                y: PebbleStyle.size.pivotWidth
            }
        }
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }
}
