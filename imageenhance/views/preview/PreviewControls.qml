import QtQuick
import QtQuick.Layouts
import PebbleUI
import imageenhance

// The bar beneath the picture.
Rectangle {
    id: _top

    required property bool pluginMode
    required property bool imageLoaded
    required property bool isLoading
    required property int editMode // EditMode
    required property bool originalActive
    required property real fitScale
    required property real outputScale
    required property bool followsUpscale

    readonly property alias zoomControl: _zoom

    signal addImages
    signal toggleOriginal

    readonly property bool _masking: [EditMode.Inpaint, EditMode.Subject, EditMode.Text].includes(editMode)

    implicitHeight: 48
    color: PebbleStyle.color.panelBkg

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: PebbleStyle.size.spacing
        anchors.rightMargin: PebbleStyle.size.spacing
        spacing: PebbleStyle.size.spacingSmall

        PbButton {
            visible: !_top.pluginMode
            type: PbButton.Type.Tertiary
            compact: true
            iconSource: PebbleStyle.icon.imageAdd
            text: qsTr("Add images")
            onClicked: _top.addImages()
        }
        PbLabel {
            visible: _top._masking
            color: PebbleStyle.color.lightGray
            text: qsTr("Hold space to pan")
        }
        Item {
            Layout.fillWidth: true
        }
        PbButton {
            visible: _top.editMode !== EditMode.Crop
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
            enabled: _top.imageLoaded && !_top.isLoading && _top.editMode !== EditMode.Crop
            fitScale: _top.fitScale
            outputScale: _top.outputScale
            followsUpscale: _top.followsUpscale
        }
    }
}
