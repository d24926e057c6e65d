import QtQml
import TControls
import imageenhance

QtObject {
    required property TControls controls
    required property string filterName
    required property string parentCategory
    required property MainSettings settings
    required property size originalSize
    required property rect cropRect
    required property string pluginDisplayName
    required property bool resizingSupported
    required property bool psAutomate
    property bool loading: false
}
