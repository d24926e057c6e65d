import QtQuick
import imageenhance

// The pictures that the preview has to show: the input, and the engine's latest result. Empty while previews are hidden.
QtObject {
    id: _top

    required property ImageProcessor engine
    required property WindowState windowState

    readonly property var input: windowState.hidesPreview ? ({}) : engine.inputImage // image map
    readonly property var result: windowState.hidesPreview ? ({}) : engine.procResult // result map
    readonly property bool srgbFallback: windowState.helpers.settings.srgbFallback
    readonly property bool inputEmpty: windowState.helpers.imageDataUtils.isEmpty(input.image)
    readonly property size inputSize: windowState.helpers.imageDataUtils.imageSize(input.image)

    signal anotherImage

    onInputChanged: {
        const uid = input.uid ?? "";
        if (uid === _private.uid)
            return;
        _private.uid = uid;
        anotherImage();
    }

    readonly property QtObject _private: QtObject {
        id: _private
        property string uid: ""
    }
}
