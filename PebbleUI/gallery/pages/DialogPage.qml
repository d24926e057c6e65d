import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI
import PebbleGallery

GallerySection {
    title: "PbDialog"

    Item {
        id: _place
        width: 330
        height: 200

        PbDialog {
            id: _dialog
            parent: _place
            anchors.centerIn: null
            modal: false
            dim: false
            focus: false
            closePolicy: Popup.NoAutoClose
            title: "Close without saving?"
            messageText: "The image has changes that have not been exported."
            buttons: [
                { type: PbButton.Type.Secondary, text: "Cancel", onClicked: () => {} },
                { type: PbButton.Type.Destructive, text: "A long answer to it", onClicked: () => {} },
                { text: "Save", enabled: false },
            ]
        }
    }

    Component.onCompleted: _dialog.open()
}
