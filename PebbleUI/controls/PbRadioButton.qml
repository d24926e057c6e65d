import QtQuick
import QtQuick.Templates as T
import PebbleUI

T.RadioButton {
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
        width: _top.indicatorSize
        height: _top.indicatorSize
        radius: width / 2
        opacity: _top.enabled ? 1 : PebbleStyle.size.disabledOpacity
        color: PebbleStyle.color.clear
        border.width: PebbleStyle.size.border
        border.color: _top.hovered ? PebbleStyle.color.white : PebbleStyle.color.lightGray

        Rectangle {
            anchors.centerIn: parent
            visible: _top.checked
            width: parent.width / 2
            height: width
            radius: width / 2
            color: PebbleStyle.color.white
        }
    }

    contentItem: PbText {
        leftPadding: _top.indicatorSize + (text !== "" ? _top.spacing : 0)
        type: _top.labelType
        text: _top.text
        enabled: _top.enabled
    }

    PbHoverTip {
        id: _tip
    }
}
