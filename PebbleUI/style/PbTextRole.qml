import QtQuick

// How one kind of text is set: size in points before `PebbleStyle.pointSize`, line height in pixels.
QtObject {
    required property string family
    required property real size
    required property int weight
    required property real lineHeight
    property bool italic: false
    property real letterSpacing: 0

    // All of it at once: a text that takes this one value is set up once and not five times.
    readonly property font font: Qt.font({
        family: family,
        pointSize: size * _perPoint,
        weight: weight,
        italic: italic,
        letterSpacing: letterSpacing,
    })

    // Points are counted at 72 to the inch on macOS and at 96 elsewhere: the same number would look larger.
    readonly property real _perPoint: Qt.platform.os === "osx" ? 1 : 0.7
}
