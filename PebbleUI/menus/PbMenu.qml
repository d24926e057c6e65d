pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI

// A menu. One that is longer than the window scrolls.
Menu {
    id: _top

    // Where a small pointer is: along the top when positive, down the left side, as sub-menus have it,
    // when negative. Zero for none.
    property real pivot: 0

    width: PebbleStyle.size.menuWidth
    padding: PebbleStyle.size.border
    topPadding: PebbleStyle.size.spacingSmall
    bottomPadding: PebbleStyle.size.spacingSmall
    margins: PebbleStyle.size.spacing
    overlap: PebbleStyle.size.border
    delegate: PbMenuItem {}

    // The arrow keys pass over disabled items by themselves, but not over hidden ones. Later, because the
    // menu is still at work on its focus.
    onCurrentIndexChanged: Qt.callLater(_private.passOverHidden)

    QtObject {
        id: _private

        property int lastIndex: -1

        function passOverHidden(): void {
            const index = _top.opened ? choosable(_top.currentIndex) : -1;
            lastIndex = index;
            if (_top.opened && index !== _top.currentIndex)
                _top.currentIndex = index;
        }

        // `index`, or the next one in the direction of travel; at the end of the menu, where it came from.
        function choosable(index: int): int {
            const step = index < lastIndex ? -1 : 1;
            for (let i = index; i >= 0 && i < _top.count; i += step) {
                const item = _top.itemAt(i) as MenuItem;
                if (item?.visible && item.enabled)
                    return i;
            }
            return index === -1 ? -1 : lastIndex;
        }
    }

    background: PbMenuBackground {
        pivot: _top.pivot
    }

    contentItem: ListView {
        implicitHeight: contentHeight
        model: _top.contentModel
        currentIndex: _top.currentIndex
        interactive: contentHeight > height
        clip: interactive
        boundsBehavior: Flickable.StopAtBounds
        highlightFollowsCurrentItem: false
        onCurrentIndexChanged: {
            if (currentIndex >= 0)
                positionViewAtIndex(currentIndex, ListView.Contain);
        }
        Accessible.role: Accessible.PopupMenu
        Accessible.name: _top.title

        ScrollBar.vertical: PbScrollBar {}
    }
}
