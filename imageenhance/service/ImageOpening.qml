import QtQuick

// From a path in the list to a picture in the engine: what follows when another image becomes current and when it
// has been read.
QtObject {
    id: _top

    required property var controls // TControls
    required property var engine // TEngineController
    required property var reader // TImageReader
    required property var autopilot // AutopilotRun
    required property var scheduler // ProcScheduler
    required property bool exporting

    // The image can't be read; `error` is the reader's sentence.
    signal loadingFailed(string path, string error)

    function currentIndexChanged(): void {
        const file = _top.controls.currentImage;
        if (_top.controls.currentIndex < 0 || file === "")
            return;
        console.info("Loading file:", file);
        if (!_top.exporting)
            _top.engine.cancelProc();
        const changed = _top.loadImage(file, false);
        const steps = _top.autopilot.stepsOfNewImage();
        // The reader has nothing new to say about the image it holds.
        if (_top.exporting && !changed)
            Qt.callLater(_top.scheduler.procFull);
        _top.autopilot.stepsChosen(steps);
    }

    // Whether a load began; `force` also for the path that the reader has.
    function loadImage(file: string, force: bool): bool {
        if (force)
            _top.reader.filepath = "";
        if (_top.reader.filepath === file)
            return false;
        _top.reader.filepath = file;
        return true;
    }

    // The picture stands. The user may have moved on to another one meanwhile.
    function imageDataChanged(imageData: var): void {
        const index = _top.controls.currentIndex;
        if (!imageData.filepath || imageData.filepath !== _top.controls.loadedImages[index])
            return;
        _top.controls.setThumbnail(index, imageData.thumbnail ?? "");
        if ((_top.controls.currentImageData.resolution ?? null) !== null)
            return;
        _top.controls.setResolution(imageData.resolution || 72);
        _top.controls.setCrop(imageData.cropRect ?? Qt.rect(0, 0, 1, 1), 0);
    }

    function readerFailed(error: string): void {
        if (error === "")
            return;
        const path = _top.reader.filepath;
        console.warn("Could not load image:", path, error);
        _top.loadingFailed(path, error);
        if (_top.exporting)
            return;
        _top.reader.filepath = "";
        _top.autopilot.closeRefineMode();
        const index = _top.controls.indexOf(path);
        if (index >= 0)
            _top.controls.closeImage(index);
    }
}
