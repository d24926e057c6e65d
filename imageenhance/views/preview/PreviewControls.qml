import QtQuick
import QtQuick.Layouts
import PebbleUI
import imageenhance

// The bar beneath the picture.
Rectangle {
    id: _top

    required property WindowState windowState
    required property ImagePreviewState previewState
    required property MainSettings settings
    required property bool imageLoaded
    required property bool originalActive

    readonly property alias zoomControl: _zoom

    signal addImages
    signal toggleOriginal

    implicitHeight: 48
    color: PebbleStyle.color.panelBkg

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: PebbleStyle.size.spacing
        anchors.rightMargin: PebbleStyle.size.spacing
        spacing: PebbleStyle.size.spacingSmall

        PbButton {
            visible: !_top.windowState.pluginMode
            type: PbButton.Type.Tertiary
            compact: true
            iconSource: PebbleStyle.icon.imageAdd
            text: qsTr("Add images")
            onClicked: _top.addImages()
        }
        PbLabel {
            visible: _top.windowState.isMasking
            color: PebbleStyle.color.lightGray
            text: qsTr("Hold space to pan")
        }
        Item {
            Layout.fillWidth: true
        }
        PbButton {
            visible: !_top.windowState.isCropping
            enabled: _top.imageLoaded
            type: PbButton.Type.Tertiary
            compact: true
            iconSource: _top.originalActive ? PebbleStyle.icon.eyeClosed : PebbleStyle.icon.eyeOpen
            selected: _top.originalActive
            tooltip.text: qsTr("Show original")
            tooltip.hugContents: true
            onClicked: _top.toggleOriginal()
        }
        ImageZoomControl {
            id: _zoom
            enabled: _top.imageLoaded && !_top.windowState.isLoading && !_top.windowState.isCropping
            fitScale: _top.previewState.fitZoom
            outputScale: _top.previewState.scale
            followsUpscale: _top.settings.updateZoomAfterUpscale
        }
    }
}
