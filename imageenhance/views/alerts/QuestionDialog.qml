import QtQuick
import PebbleUI

// A question with two answers: accepted() by its second button, rejected() by anything else.
PbDialog {
    id: _top

    required property string confirmText

    height: implicitHeight
    buttons: [
        {
            type: PbButton.Type.Secondary,
            text: qsTr("Cancel"),
            onClicked: () => _top.reject()
        },
        {
            type: PbButton.Type.Primary,
            text: _top.confirmText
        }
    ]
}
