import QtQuick
import TControls
import TImageIO

// Keeps the thumbnail writer at what is open and in view, and hands finished thumbnails to the model.
QtObject {
    id: _top

    required property TControls controls
    required property TThumbnailWriter writer

    function refresh(): void {
        _top.writer.imageDatas = _top.controls.allImageData();
        _top.writer.startGenerating();
    }

    function imageDataChanged(index: int): void {
        _top.writer.setImageData(index, _top.controls.getImageData(index));
    }

    // The list may have shifted since the thumbnail was begun.
    function written(index: int, path: string, thumbnail: string): void {
        if (_top.controls.loadedImages[index] === path)
            _top.controls.setThumbnail(index, thumbnail);
    }
}
