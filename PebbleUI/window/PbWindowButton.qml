import QtQuick
import QtQuick.Templates as T
import PebbleUI

// One of a window's own buttons: an icon without a text.
T.AbstractButton {
    id: _top

    required property url iconSource

    // Shown in red under the pointer.
    property bool closes: false

    readonly property bool _lit: enabled && (hovered || down)

    implicitWidth: PebbleStyle.size.windowButton
    implicitHeight: PebbleStyle.size.windowHeader
    padding: 0
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: text
    Keys.onReturnPressed: click()
    Keys.onEnterPressed: click()

    background: Rectangle {
        color: !_top._lit ? PebbleStyle.color.clear
             : _top.closes ? PebbleStyle.color.darkRed : PebbleStyle.color.darkGray
    }

    contentItem: Item {
        PbIcon {
            anchors.centerIn: parent
            iconSource: _top.iconSource
            color: !_top.enabled ? PebbleStyle.color.textDisabled
                 : _top._lit && _top.closes ? PebbleStyle.color.textAlwaysLight : PebbleStyle.color.textLight
        }

        // Inside the button: outside of it the ring would leave the window.
        PbFocusRing {
            target: _top
            anchors.margins: PebbleStyle.size.focusRing
            radius: PebbleStyle.size.smallRadius
        }
    }
}
