import QtQuick
import imageenhance

// From a path in the list to a picture in the engine: what follows when another image becomes current, when it has
// been read or can't be, and when images are closed.
QtObject {
    id: _top

    required property ImageProcessor engine
    required property RightPanel panel
    required property WindowState windowState
    required property AutopilotRun autopilot
    required property ProcScheduler scheduler

    // The image can't be read; `error` is the reader's sentence.
    signal loadingFailed(string path, string error)

    // Whether a load began; `force` also for the path that the reader has.
    function loadImage(file: string, force: bool): bool {
        const reader = _top.windowState.reader;
        if (force)
            reader.filepath = "";
        if (reader.filepath === file)
            return false;
        reader.filepath = file;
        return true;
    }

    readonly property Connections _ofControls: Connections {
        target: _top.windowState.controls

        function onCurrentIndexChanged(): void {
            const file = _top.windowState.controls.currentImage;
            if (_top.windowState.controls.currentIndex < 0 || file === "")
                return;
            console.info("Loading file:", file);
            if (!_top.windowState.isExporting)
                _top.engine.cancelProc();
            const changed = _top.loadImage(file, false);
            // The reader has nothing new to say about the image it holds.
            if (_top.windowState.isExporting && !changed)
                Qt.callLater(_top.scheduler.procFull);
            _top.panel.showSteps(_top.autopilot.stepsOfNewImage());
        }

        // The next image takes the place of the one that went.
        function onImagesClosed(): void {
            const controls = _top.windowState.controls;
            const count = controls.loadedImages.length;
            if (count === 0)
                _top.windowState.reader.clear();
            else if (controls.currentImage === "" || controls.currentImage !== _top.windowState.reader.filepath)
                controls.setCurrentIndex(Math.min(Math.max(controls.currentIndex, 0), count - 1), true);
        }
    }

    readonly property Connections _ofReader: Connections {
        target: _top.windowState.reader

        // The picture is there. The user may have moved on to another one meanwhile.
        function onImagedataChanged(): void {
            const controls = _top.windowState.controls;
            const imageData = _top.windowState.reader.imagedata;
            const index = controls.currentIndex;
            if (!imageData.filepath || imageData.filepath !== controls.loadedImages[index])
                return;
            controls.setThumbnail(index, imageData.thumbnail ?? "");
            if ((controls.currentImageData.resolution ?? null) !== null)
                return;
            controls.setResolution(imageData.resolution || 72);
            controls.setCrop(imageData.cropRect ?? Qt.rect(0, 0, 1, 1), 0);
        }

        function onErrorChanged(): void {
            const reader = _top.windowState.reader;
            const error = reader.error;
            if (error === "")
                return;
            const path = reader.filepath;
            console.warn("Could not load image:", path, error);
            _top.loadingFailed(path, error);
            if (_top.windowState.isExporting)
                return;
            reader.filepath = "";
            _top.panel.closeRefineMode();
            const index = _top.windowState.controls.indexOf(path);
            if (index >= 0)
                _top.windowState.controls.closeImage(index);
        }
    }
}
