pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Fusion
import QtQuick.Layouts
import PebbleUI

// A dialog within the window: dims it, and keeps pointer and Tab to itself. Escape and the header's button
// reject it. Return and Enter press the focused button, or else the default one. What is put into the
// dialog is laid out in a column below the message.
Dialog {
    id: _top

    // Entries { type, text, enabled, onClicked }. A button without an `onClicked` accepts the dialog.
    property var buttons: [{ type: PbButton.Type.Primary, text: qsTr("Done") }]

    // As much of the window's top is not dimmed, so that its title bar and menus stay in sight.
    property real overlayTopMargin: Qt.platform.os === "osx" ? PebbleStyle.size.dialogTopMarginMac
                                                             : PebbleStyle.size.dialogTopMargin
    property string messageText: ""

    // Plain unless set otherwise, so that text from outside cannot become markup.
    property int messageFormat: Text.PlainText

    parent: Overlay.overlay
    anchors.centerIn: parent
    modal: true
    dim: true
    focus: true
    closePolicy: Popup.CloseOnEscape
    padding: PebbleStyle.size.dialogPadding
    topPadding: title !== "" ? 0 : padding
    bottomPadding: 0
    width: PebbleStyle.size.dialogWidth
    height: {
        const room = (parent ? parent.height : Infinity) - PebbleStyle.size.dialogScreenMargin;
        return Math.max(PebbleStyle.size.dialogMinHeight, Math.min(implicitHeight, room));
    }

    Overlay.modal: Item {
        Rectangle {
            anchors.fill: parent
            anchors.topMargin: _top.overlayTopMargin
            color: PebbleStyle.color.dialogDim
        }
    }

    background: Rectangle {
        radius: PebbleStyle.size.largeRadius
        color: PebbleStyle.color.panelBkg
        border.width: PebbleStyle.size.border
        border.color: PebbleStyle.color.gray
    }

    header: PbModalHeader {
        visible: _top.title !== ""
        headerText: _top.title
        onClicked: _top.reject()
    }

    contentItem: ColumnLayout {
        spacing: PebbleStyle.size.spacing
        Keys.onReturnPressed: _private.pressDefault()
        Keys.onEnterPressed: _private.pressDefault()

        PbDialogMessage {
            objectName: "message"
            visible: text !== ""
            text: _top.messageText
            textFormat: _top.messageFormat
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.maximumHeight: implicitHeight
            Layout.alignment: Qt.AlignTop
        }
    }

    footer: PbDialogButtons {
        id: _buttons
        visible: _top.buttons.length > 0
        buttons: _top.buttons
        onPlainClicked: _top.accept()
    }

    // With a ring, so that it is seen what Return will press. A dialog that begins with a field moves the
    // focus there in a handler of its own.
    onOpened: {
        const button = _buttons.defaultButton();
        if (!button)
            return;
        button.forceActiveFocus(Qt.TabFocusReason);
        // Where the dialog was opened before, the button has the focus again by itself, for another reason.
        button.focusReason = Qt.TabFocusReason;
    }

    // Once a field has let the keyboard go it rests on the dialog itself, where no document sees a key.
    Shortcut {
        enabled: _top.opened && _private.bare
        sequences: ["Return", "Enter"]
        onActivated: _private.pressDefault()
    }

    QtObject {
        id: _private

        readonly property Item focusItem: _top.contentItem.Window.activeFocusItem
        readonly property bool bare: focusItem !== null && focusItem === _top.contentItem.parent

        function pressDefault(): void {
            _buttons.defaultButton()?.click();
        }
    }
}
