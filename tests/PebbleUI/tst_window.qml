import QtQuick
import QtTest
import PebbleUI

PebbleCase {
    id: _top
    name: "Window"
    width: 700
    height: 100

    PbWindowHeader {
        id: _header
        width: parent.width
        appVersion: "3.1.2"
        title: "<b>portrait & more</b>.png"
        showPanelCollapseToggle: true
        onPanelCollapseToggled: isPanelCollapsed = !isPanelCollapsed
    }

    Component {
        id: _titleItem
        PbButton { compact: true; text: "Rename" }
    }

    Window {
        id: _window
        width: 300
        height: 200

        PbWinWindowButtons { id: _buttons; window: _window }
    }

    function test_header(): void {
        compare(_header.height, 48);
        compare(findChild(_header, "majorVersion").text, "3");
        _header.titleItem = _titleItem;
        compare(_header.titleItemLoader.item.text, "Rename");
        _header.titleItem = null;
    }

    function test_long_title_leaves_room_for_the_buttons(): void {
        const title = _header.title;
        _header.title = "a name ".repeat(100);
        waitForPolish(_header.Window.window);
        const toggle = _header.panelCollapseButton;
        verify(toggle.mapToItem(_header, toggle.width, 0).x <= _header.width);
        _header.title = title;
    }

    function test_toggle(): void {
        const toggle = _header.panelCollapseButton;
        for (const name of ["Collapse sidebar", "Expand sidebar"]) {
            compare(toggle.Accessible.name, name);
            mouseClick(toggle);
        }
    }

    function test_window_buttons(): void {
        _window.show();
        tryVerify(() => _window.visible);
        compare(_buttons.closeButton.width, 48);
        mouseClick(_buttons.maximizeButton);
        tryVerify(() => _window.visibility === Window.Maximized);
        compare(_buttons.maximizeButton.Accessible.name, "Restore");
        mouseClick(_buttons.maximizeButton);
        tryVerify(() => _window.visibility === Window.Windowed);
        mouseClick(_buttons.minimizeButton);
        tryVerify(() => _window.visibility === Window.Minimized);
        _window.showNormal();
        mouseClick(_buttons.closeButton);
        tryVerify(() => !_window.visible);
    }
}
