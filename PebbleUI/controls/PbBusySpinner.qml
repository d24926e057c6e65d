import QtQuick
import PebbleUI

// Shows that something is going on. An animated image: an item that turns repaints the window at the
// display's full rate and costs 20 to 30 % of a GPU. It plays only while it can be seen.
AnimatedImage {
    id: _top

    property real size: PebbleStyle.size.spinner
    property bool running: true

    // Read only when it is to be seen: most spinners of a window never are.
    source: running ? PebbleStyle.icon.dualSpinner : ""
    width: size
    height: size
    fillMode: Image.PreserveAspectFit
    mipmap: true
    visible: running
    playing: visible
    Accessible.role: Accessible.Animation
    Accessible.name: qsTr("Busy")
}
