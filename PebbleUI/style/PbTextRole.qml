import QtQuick

// How one kind of text is set: size in points before `PebbleStyle.pointSize`, line height in pixels.
QtObject {
    id: _top

    required property string family
    required property real size
    required property int weight
    required property real lineHeight
    property bool italic: false
    property real letterSpacing: 0

    // All of it at once: a text that takes this one value is set up once and not five times. Not made by `Qt.font`,
    // which drops what comes after the point of a size.
    property font font

    font {
        family: _top.family
        // Points are counted at 72 to the inch on macOS and at 96 elsewhere: the same number would look larger.
        pointSize: Qt.platform.os === "osx" ? _top.size : _top.size * 0.7
        weight: _top.weight
        italic: _top.italic
        letterSpacing: _top.letterSpacing
    }
}
