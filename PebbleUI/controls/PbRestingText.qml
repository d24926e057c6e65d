import QtQuick
import QtQuick.Templates as T
import PebbleUI

// Stands in for a field's own text while nobody edits it, in the same place, and ends in dots where it is too long.
// Of an empty field it is the placeholder.
PbText {
    id: _top

    required property T.TextField field
    required property bool inUse

    readonly property bool _isEmpty: field.length === 0

    x: field.leftPadding
    width: field.width - field.leftPadding - field.rightPadding
    height: field.height
    visible: !inUse || (_isEmpty && field.preeditText === "")
    text: _isEmpty ? field.placeholderText : field.displayText
    color: _isEmpty ? field.placeholderTextColor : field.color
    font: field.font
    horizontalAlignment: field.horizontalAlignment
}
