import QtQuick
import ImageDataUtils
import MouseListener
import TImageUtils
import TNetwork
import TQmlUtils
import TabletListener
import imageenhance

// The small native objects that everything shares.
QtObject {
    id: _top

    required property var appContext // AppContext
    required property var appWindow // ApplicationWindow
    required property MainSettings settings

    readonly property OSUtils osUtils: OSUtils {}
    readonly property TImageUtils imageUtils: TImageUtils {}
    readonly property ImageDataUtils imageDataUtils: ImageDataUtils {}
    readonly property MouseListener mouseListener: MouseListener {}
    readonly property TabletListener tabletListener: TabletListener {}
    readonly property TEventTracker eventTracker: TEventTracker {
        enabled: _top.settings.allowEventTracking
        isDev: _top.appContext.isDev
        machineId: _top.osUtils.machineId()
    }
    readonly property StartEvent startEvent: StartEvent {
        tracker: _top.eventTracker
        osUtils: _top.osUtils
        appWindow: _top.appWindow
        settings: _top.settings
    }

    function listen(): void {
        mouseListener.listenTo(appWindow);
        tabletListener.listenTo(appWindow);
        settings.dropVanishedFolders(path => osUtils.fileExists(path));
    }

    // The last things of a session.
    function leave(): void {
        osUtils.clearTempFiles();
        eventTracker.track("Application Closed");
    }
}
