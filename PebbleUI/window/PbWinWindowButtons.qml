import QtQuick
import QtQuick.Layouts
import QtQuick.Window
import PebbleUI

// Minimise, maximise or restore, close. The buttons are exposed for the agent of a frameless window, which
// registers them as the system's.
RowLayout {
    id: _top

    required property Window window

    readonly property alias minimizeButton: _minimize
    readonly property alias maximizeButton: _maximize
    readonly property alias closeButton: _close

    readonly property bool _large: window !== null && (window.visibility === Window.Maximized
                                                       || window.visibility === Window.FullScreen)

    spacing: 0

    PbWindowButton {
        id: _minimize
        text: qsTr("Minimize")
        iconSource: PebbleStyle.icon.windowMinimize
        onClicked: _top.window.showMinimized()
        Layout.fillHeight: true
    }

    PbWindowButton {
        id: _maximize
        text: _top._large ? qsTr("Restore") : qsTr("Maximize")
        iconSource: _top._large ? PebbleStyle.icon.windowRestore : PebbleStyle.icon.windowMaximize
        onClicked: {
            if (_top._large)
                _top.window.showNormal();
            else
                _top.window.showMaximized();
        }
        Layout.fillHeight: true
    }

    PbWindowButton {
        id: _close
        text: qsTr("Close")
        iconSource: PebbleStyle.icon.windowClose
        closes: true
        onClicked: _top.window.close()
        Layout.fillHeight: true
    }
}
