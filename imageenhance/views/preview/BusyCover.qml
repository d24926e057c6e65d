import QtQuick
import PebbleUI

// Covers the picture while another is being read; takes the pointer.
Rectangle {
    id: _top

    required property bool running

    visible: running
    color: PebbleStyle.color.pageBkg
    opacity: 0.5

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }
    PbBusySpinner {
        anchors.centerIn: parent
        running: _top.running
        size: 32
    }
}
