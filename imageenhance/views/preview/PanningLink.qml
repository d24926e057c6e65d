import QtQuick
import PropertyLinker
import PropertyTracker
import imageenhance

// Keeps the two pictures at one position. The one that the user moves leads.
PropertyLinker {
    id: _top

    required property FlickableImage originalImage
    required property FlickableImage previewImage

    PropertyTracker {
        name: "Original"
        target: _top.originalImage
        value: _top.originalImage.middle
        activateOn: _top.originalImage.panning
        onUpdate: middle => _top.originalImage.lookAt(middle)
    }
    PropertyTracker {
        name: "Preview"
        target: _top.previewImage
        value: _top.previewImage.middle
        activateOn: _top.previewImage.panning
        onUpdate: middle => _top.previewImage.lookAt(middle)
    }
}
