import QtQuick
import QtQuick.Layouts
import PebbleUI
import imageenhance

// Says something, with a line of details, and has one button.
QueuedDialog {
    id: _top

    required property string details

    buttons: [
        {
            type: PbButton.Type.Primary,
            text: qsTr("Close"),
            onClicked: () => _top.answer(true)
        }
    ]

    PbLabel {
        visible: text !== ""
        text: _top.details
        color: PebbleStyle.color.lightGray
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        verticalAlignment: Text.AlignTop
        Layout.fillWidth: true
        Layout.fillHeight: true
    }
}
