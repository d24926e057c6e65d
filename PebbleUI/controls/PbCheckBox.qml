import QtQuick
import QtQuick.Templates as T
import PebbleUI

T.CheckBox {
    id: _top

    property real indicatorSize: PebbleStyle.size.indicator
    property int labelType: PbLabel.Type.Body
    property alias tooltip: _tip

    readonly property bool _set: checkState !== Qt.Unchecked

    // The ring that shows where the keyboard is.
    function focusRing(): PbFocusRing {
        return PbFocusRings.of(_top, indicator, PebbleStyle.size.spacingTiny);
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
        radius: PebbleStyle.size.spacingTiny
        opacity: _top.enabled ? 1 : PebbleStyle.size.disabledOpacity
        color: _top._set ? PebbleStyle.color.primeBlue : PebbleStyle.color.clear
        border.width: PebbleStyle.size.border
        border.color: _top.hovered ? PebbleStyle.color.white : PebbleStyle.color.lightGray

        PbIcon {
            anchors.centerIn: parent
            size: parent.width
            iconSource: !_top._set ? "" : _top.checkState === Qt.Checked ? PebbleStyle.icon.check
                                                                          : PebbleStyle.icon.minus
            color: PebbleStyle.color.alwaysDark
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
