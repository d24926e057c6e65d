import QtQuick

// Keeps the thumbnail writer at what is open and in view, and hands finished thumbnails to the model.
QtObject {
    id: _top

    required property var controls // TControls
    required property var writer // TThumbnailWriter

    function refresh(): void {
        const datas = [];
        for (let index = 0; index < _top.controls.loadedImages.length; ++index)
            datas.push(_top.controls.getImageData(index));
        _top.writer.imageDatas = datas;
        _top.writer.startGenerating();
    }

    function imageDataChanged(index: int): void {
        const datas = Array.from(_top.writer.imageDatas);
        if (index >= datas.length)
            return;
        datas[index] = _top.controls.getImageData(index);
        _top.writer.imageDatas = datas;
    }

    // The list may have shifted since the thumbnail was begun.
    function written(index: int, path: string, thumbnail: string): void {
        if (_top.controls.loadedImages[index] === path)
            _top.controls.setThumbnail(index, thumbnail);
    }
}
