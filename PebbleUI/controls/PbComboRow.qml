import QtQuick
import QtQuick.Templates as T
import PebbleUI

// One row of a choice's list: a check box or Autopilot's dot where there are such, the text, and a second
// text at the right. A long text gives way before the second one does, up to half of the row.
T.ItemDelegate {
    id: _top

    property string secondary: ""
    property bool current: false
    property bool withDot: false
    property bool isAuto: false
    property bool withCheck: false

    readonly property color _ink: !enabled ? PebbleStyle.color.textDisabled
                                : highlighted || hovered ? PebbleStyle.color.textHoverLight : PebbleStyle.color.textLight

    implicitHeight: PebbleStyle.size.comboRow
    leftPadding: PebbleStyle.size.spacing
    rightPadding: PebbleStyle.size.spacing
    topPadding: 0
    bottomPadding: 0
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.role: withCheck ? Accessible.CheckBox : Accessible.ListItem
    Accessible.name: text
    Accessible.description: [secondary, isAuto ? qsTr("Autopilot's value") : ""].filter(part => part !== "").join(", ")
    Accessible.checkable: withCheck
    Accessible.checked: withCheck && current
    Accessible.selected: !withCheck && current

    background: Rectangle {
        radius: PebbleStyle.size.smallRadius
        color: _top.highlighted || _top.hovered ? PebbleStyle.color.darkGray : PebbleStyle.color.clear
    }

    contentItem: Item {
        Item {
            id: _mark
            width: _top.withCheck ? PebbleStyle.size.indicator : _top.withDot ? PebbleStyle.size.dotRegular : 0
            height: parent.height

            Rectangle {
                visible: _top.withCheck
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width
                height: width
                radius: PebbleStyle.size.spacingTiny
                color: _top.current ? PebbleStyle.color.primeBlue : PebbleStyle.color.clear
                border.width: PebbleStyle.size.border
                border.color: PebbleStyle.color.lightGray

                PbIcon {
                    size: parent.width
                    iconSource: _top.current ? PebbleStyle.icon.check : ""
                    color: PebbleStyle.color.alwaysDark
                }
            }

            PbAutoPilotDot {
                objectName: "autoDot"
                anchors.verticalCenter: parent.verticalCenter
                visible: _top.withDot && _top.isAuto
                Accessible.ignored: true
            }
        }

        PbText {
            id: _text
            x: _mark.width > 0 ? _mark.width + PebbleStyle.size.spacing : 0
            width: _second.x - x - (_second.width > 0 ? PebbleStyle.size.spacing : 0)
            height: parent.height
            text: _top.text
            type: _top.current && !_top.withCheck ? PbLabel.Type.Title : PbLabel.Type.Body
            color: _top._ink
        }

        PbText {
            id: _second
            objectName: "secondary"
            anchors.right: parent.right
            width: Math.min(implicitWidth, parent.width / 2)
            height: parent.height
            text: _top.secondary
            color: PebbleStyle.color.lighterGray
        }
    }
}
