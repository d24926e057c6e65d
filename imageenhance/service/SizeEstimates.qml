import QtQuick
import TImageIO
import imageenhance
import "../utils/writerOptions.mjs" as Writer

// How large the file would be that a save writes now: asks the writer, and drops answers to what is no longer wanted.
// The size is that of the picture before it is enlarged.
QtObject {
    id: _top

    required property ImageProcessor engine
    required property TImageWriter writer
    required property RightPanel panel // shows the size of the current image
    required property WindowState windowState
    required property MainSettings settings

    readonly property alias fileSize: _private.fileSize // the latest answer, in bytes

    // Every answer; options and extension say which question it belongs to.
    signal estimated(string path, string extension, var options, real fileSize)
    signal failed(string path, string why)

    function request(imageData: var): void {
        if (!imageData.filepath || !_top.windowState.integrations.fileSizeEstimationSupported)
            return;
        const extension = _private.extensionOf(imageData.filepath);
        _private.asked.push(imageData.filepath);
        _top.writer.estimateFileSize(imageData, extension, Writer.writerOptions(extension, _top.settings));
    }

    readonly property Connections _ofPanel: Connections {
        target: _top.panel

        function onEstimateFileSize(): void {
            _top.request(_top.engine.inputImage);
        }
    }

    readonly property Connections _ofWriter: Connections {
        target: _top.writer

        function onFileSizeEstimated(id: string, extension: string, saveOptions: var, fileSize: real): void {
            _private.answered(id);
            _private.fileSize = fileSize;
            _top.estimated(id, extension, saveOptions, fileSize);
            if (id !== _top.windowState.controls.currentImage || extension !== _private.extensionOf(id))
                return;
            if (Writer.sameOptions(saveOptions, Writer.writerOptions(extension, _top.settings)))
                _top.panel.updateFileSizeEstimate(fileSize);
        }

        // The writer reports a save that failed in the same way.
        function onErrorSaving(path: string, why: string): void {
            if (!_private.answered(path))
                return;
            _top.failed(path, why);
            if (path === _top.windowState.controls.currentImage)
                _top.panel.fileSizeEstimateError(why);
        }
    }

    readonly property QtObject _private: QtObject {
        id: _private

        property var asked: [] // paths with a question under way, once for each
        property real fileSize: 0

        function extensionOf(path: string): string {
            const format = _top.windowState.integrations.isPluginMode ? "preserve" : _top.settings.saveImageFormat;
            const imageUtils = _top.windowState.helpers.imageUtils;
            return imageUtils.getExportExtension(imageUtils.getExtension(path), format);
        }

        function answered(path: string): bool {
            const at = asked.indexOf(path);
            if (at >= 0)
                asked.splice(at, 1);
            return at >= 0;
        }
    }
}
