pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI

// What lies under a slider's handle: the track, its filled part, and Autopilot's mark.
Item {
    id: _top

    required property real trackX
    required property real trackWidth
    required property real filledWidth
    required property Gradient gradient
    required property bool active
    required property real markX
    required property bool markVisible
    required property bool markFaded

    PbBox {
        x: _top.trackX
        anchors.verticalCenter: parent.verticalCenter
        width: _top.trackWidth
        height: PebbleStyle.size.sliderTrack
        radius: PebbleStyle.size.sliderTrack / 2
        color: PebbleStyle.color.darkGray

        PbBox {
            visible: _top.gradient === null
            width: _top.filledWidth
            height: PebbleStyle.size.sliderTrack
            radius: PebbleStyle.size.sliderTrack / 2
            color: _top.active ? PebbleStyle.color.primeBlue : PebbleStyle.color.gray
        }

        Loader {
            active: _top.gradient !== null
            anchors.fill: parent
            sourceComponent: Rectangle {
                radius: PebbleStyle.size.sliderTrack / 2
                gradient: _top.gradient
            }
        }
    }

    Rectangle {
        objectName: "autoMark"
        x: _top.markX
        anchors.verticalCenter: parent.verticalCenter
        width: PebbleStyle.size.autoMarkWidth
        height: PebbleStyle.size.autoMarkHeight
        visible: _top.markVisible
        color: PebbleStyle.color.alwaysPrimeGreen
        border.width: PebbleStyle.darkMode ? 0 : PebbleStyle.size.border
        border.color: PebbleStyle.color.alwaysDark
        opacity: _top.markFaded ? 0 : 1

        Behavior on opacity {
            NumberAnimation { duration: PebbleStyle.time.fade }
        }
    }
}
