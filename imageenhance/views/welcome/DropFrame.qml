import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI

// Where images are dropped or browsed for. A click anywhere browses; the drop itself is received by the program.
AbstractButton {
    id: _top

    required property bool dropEnabled

    readonly property bool dragged: _drop.containsDrag

    signal browseImages

    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Drag and drop images or folder to start editing")
    onClicked: browseImages()

    background: Rectangle {
        radius: PebbleStyle.size.largeRadius
        color: PebbleStyle.color.panelBkg
        border.width: _top.dragged ? 3 : 1
        border.color: _top.dragged ? PebbleStyle.color.primeBlue : PebbleStyle.color.gray

        DotGrid {
            anchors.fill: parent
            anchors.margins: 4
        }
        PbFocusRing {
            target: _top
            targetRadius: PebbleStyle.size.largeRadius
        }
    }

    contentItem: Item {
        Column {
            anchors.centerIn: parent
            width: parent.width - 2 * PebbleStyle.size.spacingLarge
            spacing: PebbleStyle.size.spacingLarge

            PbIcon {
                anchors.horizontalCenter: parent.horizontalCenter
                iconSource: PebbleStyle.icon.images
                size: 48
                color: PebbleStyle.color.lightGray
            }
            PbLabel {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                elide: Text.ElideNone
                type: PbLabel.Type.Heading
                text: qsTr("Drag and drop images or folder to start editing")
            }
            PbLabel {
                anchors.horizontalCenter: parent.horizontalCenter
                color: PebbleStyle.color.lightGray
                text: qsTr("OR")
            }
            PbButton {
                anchors.horizontalCenter: parent.horizontalCenter
                text: qsTr("Browse images")
                onClicked: _top.browseImages()
            }
        }
    }

    DropArea {
        id: _drop
        anchors.fill: parent
        enabled: _top.dropEnabled
    }
}
