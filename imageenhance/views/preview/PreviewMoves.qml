import QtQuick
import imageenhance

// What moves the view from outside the picture: zoom commands and jumps to a place. The input's picture leads.
QtObject {
    id: _top

    required property PicturePair pictures
    required property ImageZoomControl zoomControl

    function zoomIn(): void {
        _top.pictures.leadWithOriginal();
        _top.zoomControl.incrementZoom();
    }

    function zoomOut(): void {
        _top.pictures.leadWithOriginal();
        _top.zoomControl.decrementZoom();
    }

    function zoomToFit(): void {
        _top.pictures.leadWithOriginal();
        _top.zoomControl.setToFit();
    }

    function resetZoom(): void {
        _top.pictures.leadWithOriginal();
        _top.zoomControl.setToDefault();
    }

    function zoomToValue(value: real): void {
        _top.pictures.leadWithOriginal();
        _top.zoomControl.setZoomLevel(value);
    }

    // To a point of the picture: its corner, or with `offset` its middle.
    function setPreviewCenter(x: real, y: real, offset: bool): void {
        const picture = _top.pictures.original;
        _top.pictures.leadWithOriginal();
        picture.moveTo(offset ? x - picture.roi.width / 2 : x, offset ? y - picture.roi.height / 2 : y, false, true);
    }

    // A new image stands in the middle at its own size.
    function moveToCenter(): void {
        _top.zoomToValue(1);
        _top.pictures.original.centre();
    }
}
