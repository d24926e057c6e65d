import QtQuick
import TControls
import imageenhance

Item {
    required property TControls controls
    required property string filterName
    required property string parentCategory
    required property ResolutionState resolution
    required property MainSettings settings
    property bool locked: false
    property bool nearLeftEdge: false

    implicitHeight: 300
}
