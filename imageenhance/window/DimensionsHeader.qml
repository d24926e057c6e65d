import QtQuick
import PebbleUI

// The size of the picture that a save would write.
Row {
    id: _top

    required property size outputSize

    visible: outputSize.width > 0 && outputSize.height > 0
    spacing: PebbleStyle.size.spacing

    PbLabel {
        text: qsTr("Dimensions")
        color: PebbleStyle.color.lightGray
    }
    PbLabel {
        text: `${_top.outputSize.width} x ${_top.outputSize.height}`
    }
}
