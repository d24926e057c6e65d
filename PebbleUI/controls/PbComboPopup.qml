import QtQuick
import QtQuick.Templates as T
import PebbleUI

// The list under a choice. It stays within the window and scrolls when it would be longer.
T.Popup {
    id: _top

    required property T.ComboBox box

    y: box.height + PebbleStyle.size.spacingTiny
    width: box.width
    height: Math.min(_list.contentHeight + topPadding + bottomPadding, _room)
    margins: PebbleStyle.size.popupMargin
    padding: PebbleStyle.size.spacingTiny

    // A click leaves the keyboard where it was. While the list is open its keys are the list's.
    property Item _keyboardBefore: null

    readonly property real _room: (box.Window.window?.height ?? Number.POSITIVE_INFINITY) - 2 * margins

    onAboutToShow: {
        _keyboardBefore = box.activeFocus ? null : box.Window.activeFocusItem;
        box.forceActiveFocus(Qt.PopupFocusReason);
    }
    onClosed: {
        if (box.activeFocus)
            _keyboardBefore?.forceActiveFocus(Qt.PopupFocusReason);
        _keyboardBefore = null;
    }

    contentItem: ListView {
        id: _list
        clip: true
        implicitHeight: contentHeight
        model: _top.box.delegateModel
        currentIndex: _top.box.highlightedIndex
        highlightRangeMode: ListView.ApplyRange
        highlightMoveDuration: 0
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: _top.box.Accessible.name

        T.ScrollBar.vertical: PbScrollBar {}
    }

    background: Rectangle {
        radius: PebbleStyle.size.smallRadius
        color: PebbleStyle.color.darkestGray
        border.width: PebbleStyle.size.border
        border.color: PebbleStyle.color.gray
    }
}
