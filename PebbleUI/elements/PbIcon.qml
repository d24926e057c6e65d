import QtQuick
import PebbleUI

// An icon in one colour. `source` is a path of PebbleStyle.icon (or any SVG file); only its shape counts.
// Decorative by default: the control round it carries the accessible name.
Image {
    id: _top

    property url iconSource
    property color color: PebbleStyle.color.textLight
    property real size: PebbleStyle.size.icon
    property real iconWidth: size
    property real iconHeight: size

    width: iconWidth
    height: iconHeight
    sourceSize: Qt.size(iconWidth, iconHeight)
    source: PbIconSource.tinted(iconSource, color)
    fillMode: Image.PreserveAspectFit
    visible: status === Image.Ready
}
