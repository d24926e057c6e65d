import QtQuick
import PebbleUI

// The head of a dialog: its title and a button that closes it. What a click does is the dialog's to say.
Item {
    id: _top

    property alias headerText: _label.text
    readonly property alias closeButton: _close

    signal clicked()

    implicitWidth: PebbleStyle.size.dialogWidth
    implicitHeight: PebbleStyle.size.modalHeader

    PbLabel {
        id: _label
        anchors.left: parent.left
        anchors.right: _close.left
        anchors.leftMargin: PebbleStyle.size.spacingLarge
        anchors.rightMargin: PebbleStyle.size.spacing
        anchors.verticalCenter: parent.verticalCenter
        type: PbLabel.Type.CTA
        Accessible.role: Accessible.Heading
    }

    PbButton {
        id: _close
        anchors.right: parent.right
        anchors.rightMargin: PebbleStyle.size.spacing
        anchors.verticalCenter: parent.verticalCenter
        type: PbButton.Type.Tertiary
        compact: true
        iconSource: PebbleStyle.icon.close
        Accessible.name: qsTr("Close")
        onClicked: _top.clicked()
    }
}
