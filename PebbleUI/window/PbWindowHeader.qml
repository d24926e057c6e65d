import QtQuick
import QtQuick.Layouts
import QtQuick.Window
import PebbleUI

// The header of a window: the product's wordmark and major version, a title or an item in its place,
// further buttons, and the button that folds a side panel.
Rectangle {
    id: _top

    property url appWordmark: PebbleStyle.brand.wordmark
    property string appVersion: ""
    property string title: ""

    // Shown in place of `title`.
    property Component titleItem: null
    property Component additionalButtons: null
    property bool showPanelCollapseToggle: false
    property bool isPanelCollapsed: false

    // macOS draws its own buttons over the header, save in full screen.
    property real leftMargin: Qt.platform.os === "osx" && Window.visibility !== Window.FullScreen
                              ? PebbleStyle.size.nativeButtonsMargin : PebbleStyle.size.spacingLarge

    // What takes clicks within the header, for registration with the agent of a frameless window.
    readonly property alias titleItemLoader: _titleItem
    readonly property alias panelCollapseButton: _collapse
    readonly property alias additionalButtonsHitArea: _additional

    signal panelCollapseToggled()

    implicitHeight: PebbleStyle.size.windowHeader
    implicitWidth: _row.implicitWidth + leftMargin + PebbleStyle.size.spacing
    color: PebbleStyle.color.panelBkg
    Accessible.role: Accessible.TitleBar
    Accessible.name: title

    RowLayout {
        id: _row
        anchors.fill: parent
        anchors.leftMargin: _top.leftMargin
        anchors.rightMargin: PebbleStyle.size.spacing
        spacing: PebbleStyle.size.spacing

        PbIcon {
            id: _wordmark
            readonly property real ratio: _shape.implicitHeight > 0 ? _shape.implicitWidth / _shape.implicitHeight : 0
            iconSource: _top.appWordmark
            iconHeight: PebbleStyle.size.wordmarkHeight
            iconWidth: Math.round(iconHeight * ratio)
            color: PebbleStyle.color.title

            // The file's own proportions; never shown.
            Image {
                id: _shape
                source: _top.appWordmark
                visible: false
            }
        }

        PbLabel {
            objectName: "majorVersion"
            visible: text !== ""
            text: _top.appVersion.charAt(0)
            type: PbLabel.Type.Title
            color: PebbleStyle.color.title
        }

        Rectangle {
            visible: _title.visible || _titleItem.visible
            color: PebbleStyle.color.gray
            Layout.preferredWidth: PebbleStyle.size.border
            Layout.preferredHeight: PebbleStyle.size.wordmarkHeight
        }

        PbLabel {
            id: _title
            visible: text !== "" && !_titleItem.visible
            text: _top.title
            elide: Text.ElideMiddle
            Layout.fillWidth: true
        }

        Loader {
            id: _titleItem
            visible: status === Loader.Ready
            sourceComponent: _top.titleItem
            Layout.fillWidth: true
        }

        Item {
            visible: !_title.visible && !_titleItem.visible
            Layout.fillWidth: true
        }

        Loader {
            id: _additional
            visible: status === Loader.Ready
            sourceComponent: _top.additionalButtons
        }

        PbButton {
            id: _collapse
            visible: _top.showPanelCollapseToggle
            type: PbButton.Type.Tertiary
            compact: true
            iconSource: _top.isPanelCollapsed ? PebbleStyle.icon.panelExpand : PebbleStyle.icon.panelCollapse
            tooltip.text: _top.isPanelCollapsed ? qsTr("Expand sidebar") : qsTr("Collapse sidebar")
            tooltip.alignment: PbTooltipPlane.Alignment.Bottom
            tooltip.hugContents: true
            onClicked: _top.panelCollapseToggled()
        }
    }
}
