import QtQuick
import QtQuick.Templates as T
import PebbleUI

T.Switch {
    id: _top

    property real indicatorSize: PebbleStyle.size.indicator
    property int labelType: PbLabel.Type.Body
    property alias tooltip: _tip

    // The ring that shows where the keyboard is.
    function focusRing(): PbFocusRing {
        return PbFocusRings.of(_top, indicator, indicatorSize / 2);
    }

    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    padding: PebbleStyle.size.spacingSmall
    spacing: PebbleStyle.size.spacing
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(implicitContentHeight, indicatorSize) + topPadding + bottomPadding
    Accessible.name: text
    Accessible.description: _tip.text
    onVisualFocusChanged: focusRing()

    indicator: PbBox {
        x: _top.leftPadding
        y: (_top.height - height) / 2
        width: Math.round(_top.indicatorSize * PebbleStyle.size.switchAspect)
        height: _top.indicatorSize
        radius: height / 2
        opacity: _top.enabled ? 1 : PebbleStyle.size.disabledOpacity
        color: _top.checked ? PebbleStyle.color.primeBlue : PebbleStyle.color.clear
        border.width: PebbleStyle.size.border
        border.color: _top.hovered ? PebbleStyle.color.white : PebbleStyle.color.lightGray

        Rectangle {
            x: _margin + _top.visualPosition * (parent.width - width - 2 * _margin)
            anchors.verticalCenter: parent.verticalCenter
            width: parent.height - 2 * _margin
            height: width
            radius: width / 2
            color: _top.checked ? PebbleStyle.color.alwaysDark : PebbleStyle.color.lightGray

            readonly property real _margin: PebbleStyle.size.focusRingGap + PebbleStyle.size.border

            Behavior on x {
                enabled: !_top.pressed
                NumberAnimation { duration: PebbleStyle.time.fade }
            }
        }
    }

    contentItem: PbText {
        leftPadding: _top.indicator.width + (text !== "" ? _top.spacing : 0)
        type: _top.labelType
        text: _top.text
        enabled: _top.enabled
    }

    PbHoverTip {
        id: _tip
    }
}
