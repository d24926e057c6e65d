pragma ComponentBehavior: Bound

import QtQuick
import PebbleUI

// A row of a sectioned choice: one to choose, or the head of a section, which is a title or a rule only.
// A head is disabled, so that neither pointer nor assistive program can press it.
PbComboRow {
    id: _top

    property bool isSection: false

    readonly property bool _titled: text !== ""

    enabled: !isSection
    implicitHeight: isSection && !_titled ? PebbleStyle.size.comboRuleRow : PebbleStyle.size.comboRow
    Accessible.role: !isSection ? Accessible.ListItem : _titled ? Accessible.StaticText : Accessible.Separator

    Loader {
        active: _top.isSection
        anchors.fill: parent
        anchors.leftMargin: _top.leftPadding
        anchors.rightMargin: _top.rightPadding
        sourceComponent: Item {
            PbLabel {
                id: _title
                height: parent.height
                width: Math.min(implicitWidth, parent.width)
                text: _top.text
                type: PbLabel.Type.Label
                enabled: true
                color: PebbleStyle.color.lightGray
                Accessible.ignored: true
            }

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                x: _top._titled ? _title.width + PebbleStyle.size.spacing : 0
                width: Math.max(0, parent.width - x)
                height: PebbleStyle.size.border
                color: PebbleStyle.color.gray
            }
        }
    }

    Binding {
        target: _top.contentItem
        property: "visible"
        value: !_top.isSection
    }
}
