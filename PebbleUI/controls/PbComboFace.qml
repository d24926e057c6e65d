pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI

// What a closed choice shows: the text of the chosen row, and an icon before it where there is one.
PbText {
    id: _top

    required property url iconSource
    required property real iconSize

    // Made when asked for: few choices have an icon.
    readonly property bool _hasIcon: iconSource.toString() !== ""

    leftPadding: _hasIcon ? iconSize + PebbleStyle.size.spacing : 0

    Loader {
        id: _icon
        active: _top._hasIcon
        y: (_top.height - height) / 2
        sourceComponent: PbIcon {
            iconSource: _top.iconSource
            size: _top.iconSize
            color: _top.color
        }
    }
}
