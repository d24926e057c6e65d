import QtQuick
import PebbleUI

// Marks a value as Autopilot's: filled while it is still the one proposed, hollow once it was changed.
Rectangle {
    id: _top

    enum Size { Regular, Small }

    property bool modified: false
    property int size: PbAutoPilotDot.Size.Regular

    implicitWidth: size === PbAutoPilotDot.Size.Small ? PebbleStyle.size.dotSmall : PebbleStyle.size.dotRegular
    implicitHeight: implicitWidth
    radius: height / 2
    color: PebbleStyle.colorWithOpacity(PebbleStyle.color.alwaysPrimeGreen, modified ? 0 : 1)
    border.width: PebbleStyle.size.border
    border.color: PebbleStyle.darkMode ? PebbleStyle.color.alwaysPrimeGreen : PebbleStyle.color.alwaysDark
    opacity: !enabled ? PebbleStyle.size.dotDisabledOpacity : modified ? PebbleStyle.size.dotModifiedOpacity : 1
    Accessible.role: Accessible.Indicator
    Accessible.name: modified ? qsTr("Changed from Autopilot's value") : qsTr("Autopilot's value")

    Behavior on color {
        ColorAnimation { duration: PebbleStyle.time.fade }
    }
    Behavior on opacity {
        NumberAnimation { duration: PebbleStyle.time.fade }
    }
}
