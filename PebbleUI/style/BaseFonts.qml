import QtQml

// The type sizes of BaseTheme, in points before its `pointSize`.
QtObject {
    readonly property string family: "Inter"
    readonly property int small: 10
    readonly property int regular: 12
    readonly property int large: 14
    readonly property int heading: 16
}
