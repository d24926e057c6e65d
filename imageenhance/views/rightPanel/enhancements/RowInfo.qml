import QtQuick
import PebbleUI

// A sign beside a row's label, with its explanation.
PbIcon {
    id: _top

    required property string text
    readonly property bool hovered: _tip.hovered

    signal clicked

    iconSource: PebbleStyle.icon.info
    color: PebbleStyle.color.lightGray
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    MouseArea {
        anchors { fill: parent; margins: -PebbleStyle.size.spacingSmall }
        onClicked: _top.clicked()
    }
    PbHoverTip {
        id: _tip
        text: _top.text
        textFormat: Text.StyledText
        hugContents: true
    }
}
