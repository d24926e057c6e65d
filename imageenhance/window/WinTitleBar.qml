pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import QWindowKit
import PebbleUI
import imageenhance

// The window's own title bar: the buttons of the window, and under them its header.
Column {
    id: _top

    required property Window window
    required property WindowState windowState
    required property MainSettings settings
    required property string appVersion

    function registerWithWindowAgent(agent: WindowAgent): void {
        agent.setTitleBar(_bar);
        agent.setSystemButton(WindowAgent.Minimize, _buttons.minimizeButton);
        agent.setSystemButton(WindowAgent.Maximize, _buttons.maximizeButton);
        agent.setSystemButton(WindowAgent.Close, _buttons.closeButton);
    }

    Rectangle {
        id: _bar

        width: parent.width
        height: PebbleStyle.size.menuBar
        color: PebbleStyle.color.panelBkg

        PbWinWindowButtons {
            id: _buttons

            anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
            window: _top.window
        }
    }

    PbWindowHeader {
        width: parent.width
        height: PebbleStyle.size.windowHeader
        title: _top.windowState.windowTitle
        appVersion: _top.appVersion
        showPanelCollapseToggle: _top.windowState.imageOpen && !_top.windowState.isCropping
        isPanelCollapsed: _top.settings.rightPanelCollapsed
        onPanelCollapseToggled: _top.settings.rightPanelCollapsed = !_top.settings.rightPanelCollapsed
        additionalButtons: _dimensions
    }

    Component {
        id: _dimensions

        DimensionsHeader {
            outputSize: _top.windowState.imageOpen ? _top.windowState.outputSize : Qt.size(0, 0)
        }
    }
}
