import QtQuick
import ImageDataUtils
import TImageProcessor
import TIntegrations
import imageenhance

// The engine, bound to the settings that it follows, and the holder of its latest results for the current image.
TEngineController {
    id: _top

    required property MainSettings settings
    required property TIntegrations integrations
    required property ImageDataUtils imageDataUtils
    required property var strokes // Inpaint strokes not applied yet

    property var maskTextures: ({}) // uid, maskHashes, brushTextures
    property var superpixels
    property var faceLandmarks: [] // [x1, y1, x2, y2, confidence] in pixels of the input
    property var selectionMask
    property var faceProblems: ({}) // autoFaces, subjectFaces, totalFaces
    property var salientRatio: null
    property rect boundingBox: Qt.rect(0, 0, 0, 0)
    readonly property bool hasInpaintStrokes: strokes.length > 0

    function resetAll(): void {
        maskTextures = {};
        superpixels = imageDataUtils.blankImage();
        faceLandmarks = [];
        selectionMask = imageDataUtils.blankImage();
        boundingBox = Qt.rect(0, 0, 0, 0);
    }

    // Cuts the image into the grains that a brush of this size takes.
    function procSuperpixels(brushSize: real): void {
        superpixels = imageDataUtils.blankImage();
        generateSuperpixels(inputImage, brushSize);
    }

    function takeProblems(problems: var): void {
        faceLandmarks = problems.faceLandmarks ?? [];
        salientRatio = problems.salientRatio ?? null;
        faceProblems = {
            "autoFaces": problems.autoFaces ?? [],
            "subjectFaces": problems.subjectFaces ?? [],
            "totalFaces": problems.faceCount ?? 0
        };
    }

    Component.onCompleted: {
        settings.feed(_top, ["upscalingType"]);
        resetAll();
    }
    resizingSupported: !integrations.isPluginMode || integrations.resizingSupported
    // A host that can't take another size gets none.
    upscalingType: {
        const type = settings.autopilotUpscalingType;
        if (resizingSupported)
            return type;
        return type === "scale" && settings.autopilotUpscalingFactor === 1 ? "scale" : "none";
    }
}
