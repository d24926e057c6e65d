pragma ComponentBehavior: Bound
import QtQuick
import PebbleUI

// The top of a refine panel: its title, its buttons, and tabs where there are two views. The panel is dragged by it.
Item {
    id: _top

    required property string title
    required property url iconSource
    required property bool showsTabs
    required property bool isEditView

    signal isEditViewChosen(bool isEditView)
    signal menuRequested(Item button)
    signal doneEdits
    signal dragBegun
    signal dragged(real x, real y) // since the beginning
    signal dropped

    readonly property int _rowHeight: 42

    height: _rowHeight + (_tabs.visible ? _tabs.height : 0)

    DragHandler {
        target: null
        dragThreshold: 4
        onActiveChanged: active ? _top.dragBegun() : _top.dropped()
        onActiveTranslationChanged: {
            if (active)
                _top.dragged(activeTranslation.x, activeTranslation.y);
        }
    }
    PbIcon {
        id: _icon
        x: PebbleStyle.size.spacingLarge
        y: Math.round((_top._rowHeight - height) / 2)
        iconSource: _top.iconSource
    }
    PbLabel {
        anchors { left: _icon.right; leftMargin: PebbleStyle.size.spacing; right: _menu.left }
        height: _top._rowHeight
        text: _top.title
        type: PbLabel.Type.Title
    }
    PbButton {
        id: _menu
        anchors.right: _close.left
        width: 32
        height: _top._rowHeight
        type: PbButton.Type.Tertiary
        padding: 0
        iconSource: PebbleStyle.icon.ellipsis
        Accessible.name: qsTr("Panel menu")
        onClicked: _top.menuRequested(this)
    }
    PbButton {
        id: _close
        anchors { right: parent.right; rightMargin: PebbleStyle.size.spacingSmall }
        width: 32
        height: _top._rowHeight
        type: PbButton.Type.Tertiary
        padding: 0
        iconSource: PebbleStyle.icon.close
        Accessible.name: qsTr("Close")
        onClicked: _top.doneEdits()
    }
    Row {
        id: _tabs

        y: _top._rowHeight
        width: parent.width
        height: 32
        visible: _top.showsTabs

        HeaderTab {
            text: qsTr("Controls")
            selected: !_top.isEditView
            onClicked: _top.isEditViewChosen(false)
        }
        HeaderTab {
            text: qsTr("Edit selection")
            selected: _top.isEditView
            onClicked: _top.isEditViewChosen(true)
        }
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: PebbleStyle.size.border
        color: PebbleStyle.color.darkGray
    }

    component HeaderTab: PbButton {
        width: _tabs.width / 2
        height: _tabs.height
        type: PbButton.Type.Tertiary
        compact: true
        Accessible.role: Accessible.PageTab
    }
}
