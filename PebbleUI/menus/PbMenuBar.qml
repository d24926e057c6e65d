pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI

// The menus' titles in a row. Alt with a title's mnemonic opens its menu; arrow keys go on from there.
MenuBar {
    id: _top

    implicitHeight: PebbleStyle.size.menuBar
    padding: 0
    spacing: 0
    Accessible.role: Accessible.MenuBar

    background: Rectangle {
        color: PebbleStyle.color.panelBkg
    }

    delegate: MenuBarItem {
        id: _item

        implicitWidth: implicitContentWidth + leftPadding + rightPadding
        implicitHeight: PebbleStyle.size.menuBar
        padding: 0
        leftPadding: PebbleStyle.size.spacing
        rightPadding: PebbleStyle.size.spacing
        Accessible.name: _mnemonic.plain(text)

        contentItem: PbLabel {
            text: _mnemonic.plain(_item.text)
            color: !_item.enabled ? PebbleStyle.color.textDisabled
                 : _item.highlighted ? PebbleStyle.color.textHoverLight : PebbleStyle.color.textLight
            Accessible.ignored: true
        }

        background: Rectangle {
            radius: PebbleStyle.size.smallRadius
            color: _item.enabled && (_item.highlighted || _item.down) ? PebbleStyle.color.darkGray
                                                                      : PebbleStyle.color.clear

            PbFocusRing {
                target: _item
                anchors.margins: 0
                radius: PebbleStyle.size.smallRadius
            }
        }
    }

    PbMnemonic {
        id: _mnemonic
    }
}
