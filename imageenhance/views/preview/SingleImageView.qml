import QtQuick

// Both pictures over one another in the middle; which shows is for the preview to say.
Item {
    id: _top

    required property Item originalImage // FlickableImage
    required property Item previewImage // FlickableImage

    readonly property size realSize: Qt.size(width, height)
    readonly property bool moving: false

    onOriginalImageChanged: _top.adopt(originalImage, _original)
    onPreviewImageChanged: _top.adopt(previewImage, _preview)
    Component.onCompleted: {
        _top.adopt(originalImage, _original);
        _top.adopt(previewImage, _preview);
    }

    function adopt(image: Item, container: Item): void {
        if (!image)
            return;
        image.parent = container;
        image.anchors.fill = container;
    }

    Item {
        id: _original
        anchors.centerIn: parent
        width: Math.min(_top.originalImage?.implicitWidth ?? 0, _top.width)
        height: Math.min(_top.originalImage?.implicitHeight ?? 0, _top.height)
    }

    Item {
        id: _preview
        anchors.centerIn: parent
        width: _original.width
        height: _original.height
    }
}
