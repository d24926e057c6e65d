import QtQuick
import QtQuick.Templates as T
import PebbleUI

// One option of a grid: icon and text, with a "Beta" badge, a value and Autopilot's dot where wanted.
T.AbstractButton {
    id: _top

    // One of PbButton.Type; gives the colours.
    property int type: PbButton.Type.Secondary
    property url iconSource
    property var value
    property bool showBeta: false
    property bool showValue: false
    property bool showAuto: false
    property bool multiSelect: false
    property bool selected: false
    property bool alignLeft: false

    readonly property PbButtonStyle _style: PbButtonStyles.byType[type] ?? PbButtonStyles.secondary
    readonly property color _ink: _shade(_style.label)
    readonly property color _noteInk: selected || hovered || down ? _ink : PebbleStyle.color.lighterGray
    readonly property string _valueText: showValue ? String(value ?? "") : ""

    // One of the style's colours, by the option's state.
    function _shade(colors: PbStateColors): color {
        return PbButtonStyles.shade(colors, enabled, hovered || down, selected);
    }

    // The ring that shows where the keyboard is.
    function focusRing(): PbFocusRing {
        return PbFocusRings.of(_top, background, PebbleStyle.size.smallRadius);
    }

    padding: PebbleStyle.size.spacing
    topPadding: 0
    bottomPadding: 0
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: PebbleStyle.size.gridOption
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: multiSelect ? Accessible.CheckBox : Accessible.RadioButton
    Accessible.name: text
    Accessible.description: [_valueText, showBeta ? qsTr("Beta") : "", showAuto ? qsTr("Autopilot's value") : ""]
                            .filter(part => part !== "").join(", ")
    Accessible.checkable: true
    Accessible.checked: selected
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()
    onVisualFocusChanged: focusRing()

    background: PbBox {
        radius: PebbleStyle.size.smallRadius
        color: _top._shade(_top._style.background)
        border.width: _top.selected ? PebbleStyle.size.border : 0
        border.color: _top.enabled ? PebbleStyle.color.primeBlue : PebbleStyle.color.gray
    }

    contentItem: Item {
        id: _content

        readonly property real _gap: PebbleStyle.size.spacingSmall
        readonly property real _extras: (_icon.visible ? _icon.width + _gap : 0) + (_beta.visible ? _beta.width + _gap : 0)
                                        + (_value.visible ? _value.width + _gap : 0) + (_dot.visible ? _dot.width + _gap : 0)

        implicitWidth: _label.implicitWidth + _extras
        implicitHeight: _label.implicitHeight

        Row {
            spacing: _content._gap
            x: _top.alignLeft ? 0 : Math.max(0, Math.round((_content.width - width) / 2))
            anchors.verticalCenter: parent.verticalCenter

            PbIcon {
                id: _icon
                iconSource: _top.iconSource
                color: _top._shade(_top._style.icon)
                anchors.verticalCenter: parent.verticalCenter
            }

            PbLabel {
                id: _label
                width: Math.min(implicitWidth, Math.max(0, _content.width - _content._extras))
                text: _top.text
                color: _top._ink
                Accessible.ignored: true
            }

            PbLabel {
                id: _beta
                objectName: "beta"
                visible: _top.showBeta
                text: qsTr("Beta")
                type: PbLabel.Type.Label
                color: _top._noteInk
                anchors.verticalCenter: parent.verticalCenter
                Accessible.ignored: true
            }

            PbLabel {
                id: _value
                objectName: "value"
                visible: _top._valueText !== ""
                text: _top._valueText
                color: _top._noteInk
                Accessible.ignored: true
            }

            PbAutoPilotDot {
                id: _dot
                objectName: "autoDot"
                visible: _top.showAuto
                anchors.verticalCenter: parent.verticalCenter
                Accessible.ignored: true
            }
        }
    }
}
