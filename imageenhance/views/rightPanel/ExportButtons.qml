import QtQuick
import PebbleUI
import TIntegrations
import imageenhance
import "../../utils/saveButton.mjs" as SaveButton

// Exporting the selected images: with the dialog, or at once by what it was set to the last time.
Rectangle {
    id: _top

    required property WindowState windowState
    required property bool collapsed
    required property bool active

    readonly property string text: {
        const host = _top.windowState.pluginMode ? _top._integrations.pluginDisplayName : null;
        return SaveButton.saveButtonText(_top.windowState.controls.selectedImages.length, host, {
            "one": qsTr("Export image"),
            "several": qsTr("Export %1 images"),
            "export": qsTr("Export"),
            "to": qsTr("%1 to %2")
        });
    }
    readonly property TIntegrations _integrations: windowState.integrations

    signal saveRequested(bool quick)

    height: visible ? 64 : 0
    color: PebbleStyle.color.panelBkg

    Rectangle {
        width: parent.width
        height: PebbleStyle.size.border
        color: PebbleStyle.color.darkGray
    }
    PbButton {
        anchors { left: parent.left; right: _quick.visible ? _quick.left : parent.right; verticalCenter: parent.verticalCenter; margins: _top.collapsed ? 4 : PebbleStyle.size.spacing }
        enabled: _top.active
        iconSource: PebbleStyle.icon.exportImage
        text: _top.text
        showText: !_top.collapsed
        padding: _top.collapsed ? 0 : PebbleStyle.size.buttonPadding
        tooltip.text: _top.collapsed ? _top.text : ""
        tooltip.alignment: PbTooltipPlane.Alignment.Left
        onClicked: _top.saveRequested(false)
    }
    PbButton {
        id: _quick
        objectName: "quickSaveButton"
        anchors { right: parent.right; rightMargin: PebbleStyle.size.spacing; verticalCenter: parent.verticalCenter }
        visible: !_top.windowState.pluginMode && !_top.collapsed
        enabled: _top.active
        type: PbButton.Type.Secondary
        iconSource: PebbleStyle.icon.save
        tooltip.text: qsTr("Quick export")
        tooltip.hugContents: true
        onClicked: _top.saveRequested(true)
    }
}
