import QtQuick
import QtQuick.Layouts
import PebbleUI

// Says something, with a line of details, and has one button.
PbDialog {
    id: _top

    property string details: ""

    function show(message: string, more = ""): void {
        messageText = message;
        details = more;
        open();
    }

    buttons: [
        {
            type: PbButton.Type.Primary,
            text: qsTr("Close")
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
