import QtQuick
import QtQuick.Layouts
import PebbleUI

// The content of a menu's row: check mark or icon, text, Autopilot's dot, the key.
RowLayout {
    id: _top

    required property string text
    required property url iconSource
    required property color color
    required property bool checkable
    required property bool checked
    required property bool autoSuggested
    required property string keyText

    spacing: PebbleStyle.size.spacing

    PbIcon {
        objectName: "check"
        visible: _top.checkable
        opacity: _top.checked ? 1 : 0
        iconSource: PebbleStyle.icon.check
        color: _top.color
    }

    PbIcon {
        iconSource: _top.iconSource
        color: _top.color
    }

    PbText {
        text: _top.text
        color: _top.color
        Layout.fillWidth: true
    }

    PbAutoPilotDot {
        visible: _top.autoSuggested
    }

    PbText {
        visible: text !== ""
        text: _top.keyText
        type: PbLabel.Type.Label
        color: _top.enabled ? PebbleStyle.color.lightGray : _top.color
        elide: Text.ElideNone
    }
}
