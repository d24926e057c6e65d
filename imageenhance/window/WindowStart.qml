import QtQuick
import QWindowKit
import TIntegrations
import imageenhance

// The start: the window's place, its frame, and the steps until it is seen.
QtObject {
    id: _top

    required property TIntegrations integrations
    required property string systemTheme // "light" or "dark"
    required property WinTitleBar titleBar
    required property Helpers helpers
    required property MainSettings settings
    required property RecentFiles recentFiles

    function run(): void {
        _steps.run();
    }

    function visibilityChanged(visibility: int): void {
        _place.visibilityChanged(visibility);
    }

    readonly property WindowAgent _agentObject: WindowAgent {
        id: _agent
    }

    readonly property WindowPlace _placeObject: WindowPlace {
        id: _place
        appWindow: _top.helpers.appWindow
        appContext: _top.helpers.appContext
        osUtils: _top.helpers.osUtils
        settings: _top.settings
    }

    readonly property StartUp _stepsObject: StartUp {
        id: _steps
        appWindow: _top.helpers.appWindow
        appContext: _top.helpers.appContext
        osUtils: _top.helpers.osUtils
        integrations: _top.integrations
        windowAgent: _agent
        titleBar: _top.titleBar
        systemTheme: _top.systemTheme
        settings: _top.settings
        place: _place
        recentFiles: _top.recentFiles
        onShown: _top.helpers.startEvent.start()
    }
}
