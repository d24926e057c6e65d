pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI

// The mark at a choice's right end: an arrow, or a spinner while its rows are being fetched.
PbIcon {
    id: _top

    required property bool busy

    iconSource: busy ? "" : PebbleStyle.icon.chevronDown
    color: enabled ? PebbleStyle.color.lighterGray : PebbleStyle.color.textDisabled
    visible: true

    Loader {
        active: _top.busy
        x: (_top.width - width) / 2
        y: (_top.height - height) / 2
        sourceComponent: PbBusySpinner {
            objectName: "spinner"
        }
    }
}
