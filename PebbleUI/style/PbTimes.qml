import QtQml

// Times in milliseconds.
QtObject {
    readonly property int fade: 100
    readonly property int doublePress: 400
}
