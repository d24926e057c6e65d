import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI

// A link with an icon, a title and a line under it.
AbstractButton {
    id: _top

    required property string title
    required property string note
    required property url iconSource

    implicitHeight: 44
    padding: PebbleStyle.size.spacing
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.Link
    Accessible.name: title
    Accessible.description: note
    Keys.onReturnPressed: click()

    background: Rectangle {
        radius: PebbleStyle.size.mediumRadius
        color: _top.hovered || _top.down ? PebbleStyle.color.darkGray : PebbleStyle.color.clear

        PbFocusRing {
            target: _top
            targetRadius: PebbleStyle.size.mediumRadius
        }
    }

    contentItem: Item {
        PbIcon {
            id: _icon
            anchors.verticalCenter: parent.verticalCenter
            iconSource: _top.iconSource
            size: 20
        }
        Column {
            anchors { left: _icon.right; leftMargin: PebbleStyle.size.spacing; right: parent.right; verticalCenter: parent.verticalCenter }

            PbLabel {
                width: parent.width
                type: PbLabel.Type.Title
                text: _top.title
                Accessible.ignored: true
            }
            PbLabel {
                width: parent.width
                color: PebbleStyle.color.lightGray
                text: _top.note
                Accessible.ignored: true
            }
        }
    }
}
