import QtQuick
import PebbleUI

// A note that the user can put away; it is back when the panel is made anew.
PbInfoTipBox {
    id: _top

    readonly property alias dismissed: _private.dismissed

    height: implicitHeight + _button.height + PebbleStyle.size.spacing

    PbButton {
        id: _button
        anchors { right: parent.right; bottom: parent.bottom; margins: PebbleStyle.size.spacing }
        type: PbButton.Type.Secondary
        compact: true
        text: qsTr("Dismiss")
        onClicked: _private.dismiss()
    }

    QtObject {
        id: _private

        property bool dismissed: false

        // Who came by the keyboard goes on from here.
        function dismiss(): void {
            if (_button.activeFocus)
                _button.nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason);
            dismissed = true;
        }
    }
}
