import QtQuick
import QtQuick.Controls.Fusion
import PebbleUI

// A dialog's message. One that is too long scrolls, by pointer and by the arrow and page keys.
Flickable {
    id: _top

    property alias text: _label.text
    property alias textFormat: _label.textFormat

    readonly property bool _scrolls: contentHeight > height

    implicitHeight: _label.implicitHeight
    contentHeight: _label.implicitHeight
    clip: _scrolls
    interactive: _scrolls
    activeFocusOnTab: _scrolls
    boundsBehavior: Flickable.StopAtBounds
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Keys.onUpPressed: _private.scroll(-PebbleStyle.font.body.lineHeight)
    Keys.onDownPressed: _private.scroll(PebbleStyle.font.body.lineHeight)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown;
        if (event.accepted)
            _private.scroll(event.key === Qt.Key_PageUp ? -height : height);
    }

    ScrollBar.vertical: PbScrollBar {}

    PbLabel {
        id: _label
        width: _top.width - PebbleStyle.size.scrollBar
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        verticalAlignment: Text.AlignTop
        Accessible.ignored: true
    }

    PbFocusRing {
        parent: _top
        target: _top
        always: true
    }

    QtObject {
        id: _private

        function scroll(by: real): void {
            _top.contentY = Math.max(0, Math.min(_top.contentY + by, _top.contentHeight - _top.height));
        }
    }
}
