import QtQuick
import QtQuick.Controls
import AppContext
import TIntegrations
import TQmlUtils
import QWindowKit
import PebbleUI
import imageenhance

// The steps of the window's start, in their order. The window stays hidden until its place and theme are settled.
QtObject {
    id: _top

    required property ApplicationWindow appWindow
    required property AppContext appContext
    required property OSUtils osUtils
    required property TIntegrations integrations
    required property WindowAgent windowAgent
    required property WinTitleBar titleBar
    required property string systemTheme // "light" or "dark"
    required property MainSettings settings
    required property WindowPlace place
    required property RecentFiles recentFiles

    signal shown

    function run(): void {
        console.info("Main window loaded");
        place.restoreGeometry();
        windowAgent.setup(appWindow);
        titleBar.registerWithWindowAgent(windowAgent);
        if (["none", "all"].includes(settings.autopilotSubjectType))
            settings.autopilotSubjectType = "All";
        place.restoreVisibility();
        _top.migrate();
        _private.followTheme();
        appWindow.visible = true;
        integrations.start();
        _top.shown();
        recentFiles.clean();
        osUtils.logSystemInfo();
    }

    // Versions before 3.1 applied recommendations in another way.
    function migrate(): void {
        if (settings.lastAppVersion === appContext.appVersion)
            return;
        if (["3.0", "2.", "1."].some(start => settings.lastAppVersion.startsWith(start)))
            settings.autopilotRecommendFilters = false;
        settings.lastAppVersion = appContext.appVersion;
        settings.preferencesTab = 0;
    }

    readonly property QtObject _private: QtObject {
        id: _private

        function followTheme(): void {
            PebbleStyle.darkMode = Qt.binding(() => _top.settings.colorScheme === "auto" ? _top.systemTheme === "dark" : _top.settings.colorScheme === "dark");
        }
    }
}
