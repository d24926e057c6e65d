import QtQml

// How one kind of text is set: size in points before `PebbleStyle.pointSize`, line height in pixels.
QtObject {
    required property real size
    required property int weight
    required property real lineHeight
    property bool italic: false
    property real letterSpacing: 0
}
