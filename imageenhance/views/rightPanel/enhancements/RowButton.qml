import QtQuick
import PebbleUI

// A button at the end of a row. The list has the keyboard, and its keys do the same: no Tab stop.
Item {
    id: _top

    required property url iconSource
    required property string text
    required property color color

    readonly property alias hovered: _hover.hovered

    signal clicked

    width: 48
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()

    PbBox {
        anchors { fill: parent; margins: PebbleStyle.size.spacing }
        visible: _hover.hovered
        radius: PebbleStyle.size.smallRadius
        color: PebbleStyle.color.gray
    }
    PbIcon {
        anchors.centerIn: parent
        iconSource: _top.iconSource
        color: _hover.hovered ? PebbleStyle.color.textHoverLight : _top.color
    }
    HoverHandler {
        id: _hover
    }
    MouseArea {
        anchors.fill: parent
        onClicked: _top.clicked()
    }
    PbHoverTip {
        text: _top.text
        hugContents: true
    }
}
