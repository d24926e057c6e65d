import QtQml

// Our own marks: a square mark and a wordmark, drawn in one colour so that PbIcon can tint them.
QtObject {
    readonly property url mark: "qrc:/PebbleUI/PebbleUI/brand/mark.svg"
    readonly property url wordmark: "qrc:/PebbleUI/PebbleUI/brand/wordmark.svg"
}
