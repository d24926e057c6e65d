import QtQuick
import imageenhance

// The pointer over a picture: its shape, the buttons, the wheel.
MouseArea {
    id: _top

    required property PreviewInput input
    required property bool pannable
    required property bool panning
    property bool wheelEnabled: true

    // The menu opens a little above the pointer, so that no entry lies under it.
    readonly property int menuLift: 20

    acceptedButtons: Qt.LeftButton | Qt.RightButton
    cursorShape: !pannable ? Qt.ArrowCursor : panning || (pressedButtons & Qt.LeftButton) ? Qt.ClosedHandCursor : Qt.OpenHandCursor
    onPressed: mouse => {
        if (mouse.button === Qt.LeftButton)
            input.focusWanted();
    }
    onClicked: mouse => {
        if (mouse.button === Qt.RightButton)
            input.rightClicked(mapToItem(null, mouse.x, mouse.y - menuLift));
    }
    onWheel: wheel => {
        if (wheelEnabled)
            input.wheelTurned(wheel.angleDelta.y);
        else
            wheel.accepted = false;
    }
}
