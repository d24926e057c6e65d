import QtQuick
import PebbleUI

// The mark at a choice's right end: an arrow, or a spinner while its rows are being fetched.
Item {
    id: _top

    required property bool busy

    width: PebbleStyle.size.icon
    height: PebbleStyle.size.icon

    PbIcon {
        anchors.fill: parent
        visible: !_top.busy
        iconSource: PebbleStyle.icon.chevronDown
        color: _top.enabled ? PebbleStyle.color.lighterGray : PebbleStyle.color.textDisabled
    }

    PbBusySpinner {
        objectName: "spinner"
        anchors.centerIn: parent
        running: _top.busy
    }
}
