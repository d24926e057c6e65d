import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI

MenuSeparator {
    id: _top

    implicitWidth: PebbleStyle.size.menuWidth
    implicitHeight: visible ? PebbleStyle.size.menuSeparator : 0
    height: implicitHeight
    padding: 0
    contentItem: Item {
        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            height: PebbleStyle.size.border
            color: PebbleStyle.color.gray
        }
    }
    background: null
    Accessible.role: Accessible.Separator
}
