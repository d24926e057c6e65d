import QtQuick
import QtQuick.Templates as T
import PebbleUI

// One entry of the add panel. Lit while it has the keyboard; the pointer gives it that. One that can't be chosen
// takes the keyboard, too, so that it can say why.
T.AbstractButton {
    id: _top

    required property url iconSource
    required property bool available
    property string description: ""

    signal pointerAt(point scene)
    signal menuWanted(point position)

    readonly property color _ink: !available ? PebbleStyle.color.textDisabled : activeFocus ? PebbleStyle.color.textHoverLight : PebbleStyle.color.textLight

    implicitHeight: 34
    leftPadding: PebbleStyle.size.spacing
    rightPadding: PebbleStyle.size.spacing
    spacing: PebbleStyle.size.spacing
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.description: description
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    background: PbBox {
        radius: PebbleStyle.size.smallRadius
        color: _top.activeFocus && _top.available ? PebbleStyle.color.gray : PebbleStyle.color.clear
        border.width: _top.activeFocus && !_top.available ? PebbleStyle.size.border : 0
        border.color: PebbleStyle.color.gray
    }

    contentItem: Item {
        PbIcon {
            id: _icon
            anchors.verticalCenter: parent.verticalCenter
            iconSource: _top.iconSource
            color: _top._ink
        }
        PbText {
            anchors { left: _icon.right; leftMargin: _top.spacing; right: parent.right; verticalCenter: parent.verticalCenter }
            text: _top.text
            color: _top._ink
        }
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        hoverEnabled: true
        onPositionChanged: mouse => _top.pointerAt(mapToItem(null, mouse.x, mouse.y))
        onClicked: mouse => _top.menuWanted(Qt.point(mouse.x, mouse.y))
    }
}
