pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Shapes
import PebbleUI

// A menu's panel and its pointer. The pointer lies outside the panel, towards what opened the menu.
Item {
    id: _top

    // Positive: along the top, so far from the left corner. Negative: down the left side, so far from the
    // top corner. Zero: none.
    required property real pivot

    readonly property bool _left: pivot < 0
    readonly property real _length: PebbleStyle.size.pivotHeight
    readonly property real _half: PebbleStyle.size.pivotWidth / 2

    // The pointer's middle, clear of the round corners.
    readonly property real _at: {
        const clear = PebbleStyle.size.largeRadius + _half;
        return Math.max(clear, Math.min(Math.abs(pivot), (_left ? height : width) - clear));
    }

    implicitWidth: PebbleStyle.size.menuWidth

    Rectangle {
        anchors.fill: parent
        radius: PebbleStyle.size.largeRadius
        color: PebbleStyle.color.darkerGray
        border.width: PebbleStyle.size.border
        border.color: PebbleStyle.color.gray
    }

    Loader {
        active: _top.pivot !== 0
        sourceComponent: Shape {
            id: _pointer

            // Reaches one border's width into the panel, to cover its edge.
            readonly property real base: PebbleStyle.size.border

            preferredRendererType: Shape.CurveRenderer

            ShapePath {
                fillColor: PebbleStyle.color.darkerGray
                strokeColor: PebbleStyle.color.gray
                strokeWidth: PebbleStyle.size.border
                startX: _top._left ? _pointer.base : _top._at - _top._half
                startY: _top._left ? _top._at - _top._half : _pointer.base

                PathLine {
                    x: _top._left ? -_top._length : _top._at
                    y: _top._left ? _top._at : -_top._length
                }

                PathLine {
                    x: _top._left ? _pointer.base : _top._at + _top._half
                    y: _top._left ? _top._at + _top._half : _pointer.base
                }
            }
        }
    }
}
