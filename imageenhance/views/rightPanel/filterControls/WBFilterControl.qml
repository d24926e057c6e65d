import QtQuick
import TControls

Rectangle {
    required property TControls controls
    required property string filterName
    required property string parentCategory
    required property bool locked
    required property bool nearLeftEdge

    implicitHeight: 200
    color: "transparent"
    border.width: 1
}
