import QtQuick

Window {
    width: 1200
    height: 900
    visible: true
}
