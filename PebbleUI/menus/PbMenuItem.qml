import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI

// A row of a menu: a command, a switch, or a way into a sub-menu. Hidden, it takes no room.
MenuItem {
    id: _top

    // Autopilot would choose this one: marked by its dot.
    property bool autoSuggested: false
    property url iconSource

    // Its key as it is shown. A row without an action may name a key that is active elsewhere.
    property var keySequence: action?.shortcut

    readonly property color _color: !enabled ? PebbleStyle.color.textDisabled
                                  : highlighted ? PebbleStyle.color.textHoverLight : PebbleStyle.color.textLight

    implicitWidth: PebbleStyle.size.menuWidth
    implicitHeight: visible ? PebbleStyle.size.menuItem : 0
    height: implicitHeight
    padding: 0
    leftPadding: PebbleStyle.size.spacingLarge
    rightPadding: PebbleStyle.size.spacingLarge
    spacing: PebbleStyle.size.spacing
    indicator: null
    Accessible.role: checkable ? Accessible.CheckBox : Accessible.MenuItem
    Accessible.name: _mnemonic.plain(text)
    Accessible.description: autoSuggested ? qsTr("Suggested by Autopilot") : ""

    background: Rectangle {
        anchors.fill: parent
        anchors.leftMargin: PebbleStyle.size.spacingSmall
        anchors.rightMargin: PebbleStyle.size.spacingSmall
        radius: PebbleStyle.size.smallRadius
        color: _top.enabled && _top.highlighted ? PebbleStyle.color.gray : PebbleStyle.color.clear
    }

    contentItem: PbMenuItemContent {
        text: _mnemonic.plain(_top.text)
        iconSource: _top.iconSource
        color: _top._color
        checkable: _top.checkable
        checked: _top.checked
        autoSuggested: _top.autoSuggested
        keyText: _key.nativeText
    }

    arrow: PbIcon {
        x: _top.width - width - PebbleStyle.size.spacing
        y: (_top.height - height) / 2
        visible: _top.subMenu !== null
        iconSource: PebbleStyle.icon.chevronRight
        color: _top._color
    }

    PbMnemonic {
        id: _mnemonic
    }

    // Never active: it knows how the key is written on this system.
    Shortcut {
        id: _key
        enabled: false
        sequence: _top.keySequence
    }
}
