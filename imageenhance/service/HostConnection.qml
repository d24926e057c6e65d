import QtQuick

// Images that arrive from outside the file dialog: start arguments, drops, and further instances.
QtObject {
    id: _top

    required property var integrations // TIntegrations
    required property var controls // TControls
    readonly property bool merging: _mergingTimer.running

    signal closeRefineMode
    signal invalidImages(var images)

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

        function onIsPluginModeChanged(isPluginMode: bool): void {
            if (isPluginMode)
                console.info("Editing for a host application");
        }
    }
}
