import QtQuick
import TControls
import TIntegrations
import TIntercom

// What other programs and further instances bring: images of start arguments, drops and merged instances, and a host's
// messages.
QtObject {
    id: _top

    required property TIntegrations integrations
    required property TIntercom intercom
    required property TControls controls
    readonly property bool merging: _mergingTimer.running

    signal closeRefineMode
    signal invalidImages(var images)
    signal loadingFailed(string path, string error)
    signal track(string name, var properties)

    // A burst of merging instances lands in the list without the view jumping: only the first batch outside such a
    // burst switches to its image.
    readonly property Timer _timer: Timer {
        id: _mergingTimer

        interval: 1000
        running: true
    }

    readonly property Connections _ofIntegrations: Connections {
        target: _top.integrations

        function onPluginImagesAdded(ids: var, mergingInstance: bool): void {
            _top.closeRefineMode();
            const dontSwitchImages = mergingInstance && _mergingTimer.running;
            _top.controls.loadImages(ids, dontSwitchImages);
            _mergingTimer.restart();
        }

        function onInvalidImages(images: var): void {
            console.warn("Unsupported files:", images);
            _top.invalidImages(images);
        }

        function onLoadingErrorChanged(): void {
            const error = _top.integrations.loadingError;
            if (error === "")
                return;
            console.warn("Could not load image:", _top.integrations.currentImage, error);
            _top.loadingFailed(_top.integrations.currentImage, error);
        }

        function onTrackEvent(identifier: string, params: var): void {
            _top.track(identifier, params);
        }

        function onIsPluginModeChanged(isPluginMode: bool): void {
            if (isPluginMode)
                console.info("Editing for a host application");
        }
    }

    // The instance that served has gone and this one serves now.
    readonly property Connections _ofIntercom: Connections {
        target: _top.intercom

        function onIsServerChanged(): void {
            if (_top.intercom.isServer)
                _top.intercom.setExternalEditor(_top.integrations.mergableInstanceKey);
        }
    }
}
