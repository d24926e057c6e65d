import QtQuick
import QtQuick.Controls
import AppContext
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

    required property AppContext appContext
    required property ApplicationWindow appWindow
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
    readonly property UsageCounts usage: UsageCounts {
        panelCollapsed: _top.settings.rightPanelCollapsed
        panelDocked: _top.settings.dragState.x === 0 && _top.settings.dragState.y === 0
    }
    readonly property StartEvent startEvent: StartEvent {
        tracker: _top.eventTracker
        osUtils: _top.osUtils
        appWindow: _top.appWindow
        settings: _top.settings
    }

    // The first thing of a session.
    function listen(): void {
        mouseListener.listenTo(appWindow);
        tabletListener.listenTo(appWindow);
        settings.dropVanishedFolders();
    }

    function imageOpened(): void {
        eventTracker.track("Image Opened");
    }

    function presetSaved(preset: var): void {
        eventTracker.track("Preset Saved", Object.assign({}, preset, {
            "app": appContext.appName,
            "app_version": appContext.appVersion
        }));
    }

    // The last things of a session.
    function leave(): void {
        osUtils.clearTempFiles();
        eventTracker.track("Application Closed", {
            "sidebar_toggled_count": usage.sidebarToggled,
            "menu_docked_toggled_count": usage.menuDockedToggled
        });
    }
}
