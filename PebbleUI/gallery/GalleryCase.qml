import QtQuick
import PebbleUI

// A control in one state, with the state's name before it.
Item {
    id: _top

    required property string name

    // Shows the control's own focus ring, though the keyboard is elsewhere.
    property bool showsFocusRing: false
    default property alias content: _slot.data

    // `item` is any Item; only some controls have the function.
    function _reveal(item: var): void {
        if (item.focusRing)
            item.focusRing().visible = true;
        for (const child of item.children)
            _reveal(child);
    }

    implicitWidth: 304
    implicitHeight: Math.max(_name.height, _slot.height)
    Component.onCompleted: {
        if (showsFocusRing)
            _reveal(_slot);
    }

    PbLabel {
        id: _name
        width: 76
        anchors.verticalCenter: parent.verticalCenter
        type: PbLabel.Type.Label
        color: PebbleStyle.color.lightGray
        text: _top.name
    }

    Item {
        id: _slot
        x: 84
        width: _top.width - x
        height: childrenRect.height
    }
}
