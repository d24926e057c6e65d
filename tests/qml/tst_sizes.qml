import QtQuick
import QtTest
import imageenhance
import "../../imageenhance/utils/writerOptions.mjs" as Writer

TestCase {
    id: _case

    name: "SizeEstimates"

    property var log: []

    QtObject {
        id: settings
        property string saveImageFormat: "preserve"
        property int saveJpegQuality: 80
        property int savePngCompression: 2
        property string savePngBitDepth: "16"
        property string saveTiffCompression: "zip"
        property string saveTiffBitDepth: "16"
        property string saveDngCompression: "1"
    }
    QtObject {
        id: writer
        property var asked: []
        signal fileSizeEstimated(id: string, extension: string, saveOptions: var, fileSize: real)
        signal errorSaving(path: string, why: string)
        function estimateFileSize(imageData: var, extension: string, options: var): void {
            asked.push({ extension, options });
        }
    }
    QtObject {
        id: imageUtils
        function getExtension(path: string): string {
            return path.slice(path.lastIndexOf(".") + 1);
        }
        function getExportExtension(extension: string, format: string): string {
            return format === "preserve" ? extension : format;
        }
    }
    QtObject {
        id: integrations
        property bool isPluginMode: false
        property bool fileSizeEstimationSupported: true
    }
    QtObject {
        id: panel
        signal estimateFileSize
        function updateFileSizeEstimate(fileSize: real): void {
            _case.log.push(fileSize);
        }
        function fileSizeEstimateError(why: string): void {
            _case.log.push(why);
        }
    }
    FakeEngine {
        id: engine
    }
    SizeEstimates {
        id: sizes
        writer: writer
        imageUtils: imageUtils
        integrations: integrations
        settings: settings
        engine: engine
        panel: panel
        currentImage: "/a.jpg"
        onEstimated: path => _case.log.push(path)
        onFailed: path => _case.log.push(path)
    }

    function init(): void {
        settings.saveImageFormat = "preserve";
        settings.saveJpegQuality = 80;
        integrations.fileSizeEstimationSupported = true;
        writer.asked = [];
        log = [];
    }

    function test_options_data(): var {
        return [
            { tag: "jpeg kept", extension: "JPG", format: "preserve", options: { "Compression": "jpeg:95" } },
            { tag: "jpeg chosen", extension: "jpg", format: "jpg", options: { "Compression": "jpeg:80" } },
            { tag: "png kept", extension: "png", format: "preserve", options: { "png:compressionLevel": 2, "compression": "huffman", "oiio:BitsPerSample": 0 } },
            { tag: "png chosen", extension: "png", format: "png", options: { "png:compressionLevel": 2, "compression": "huffman", "oiio:BitsPerSample": 16 } },
            { tag: "tiff", extension: "tif", format: "tiff", options: { "compression": "zip", "oiio:BitsPerSample": 16, "tiff:RowsPerStrip": 1, "tiff:zipquality": 4 } },
            { tag: "dng", extension: "dng", format: "dng", options: { "compressed": "1" } },
            { tag: "another", extension: "webp", format: "preserve", options: {} }
        ];
    }

    function test_options(row): void {
        settings.saveImageFormat = row.format;
        compare(Writer.writerOptions(row.extension, settings), row.options);
    }

    function test_answers_data(): var {
        const answer = (id, extension, options) => () => writer.fileSizeEstimated(id, extension, options, 1000);
        const right = { "Compression": "jpeg:95" };
        return [
            { tag: "right", answer: answer("/a.jpg", "jpg", right), log: ["/a.jpg", 1000] },
            { tag: "of another image", answer: answer("/b.jpg", "jpg", right), log: ["/b.jpg"] },
            { tag: "of another format", answer: answer("/a.jpg", "png", right), log: ["/a.jpg"] },
            { tag: "of another quality", answer: answer("/a.jpg", "jpg", { "Compression": "jpeg:70" }), log: ["/a.jpg"] },
            { tag: "with more options", answer: answer("/a.jpg", "jpg", { "Compression": "jpeg:95", "x": 1 }), log: ["/a.jpg"] },
            { tag: "failed", answer: () => writer.errorSaving("/a.jpg", "No room."), log: ["/a.jpg", "No room."] },
            { tag: "a save failed", answer: () => writer.errorSaving("/out/a.jpg", "No room."), log: [] }
        ];
    }

    function test_answers(row): void {
        panel.estimateFileSize();
        compare(writer.asked, [{ extension: "jpg", options: { "Compression": "jpeg:95" } }]);
        row.answer();
        compare(log, row.log);
        writer.errorSaving("/a.jpg", "");
        log = [];
        writer.errorSaving("/a.jpg", "No room.");
        compare(log, [], "one answer to a question");
    }

    function test_nothing_is_asked_data(): var {
        return [
            { tag: "no image", image: {}, supported: true },
            { tag: "host", image: { filepath: "/a.jpg" }, supported: false }
        ];
    }

    function test_nothing_is_asked(row): void {
        integrations.fileSizeEstimationSupported = row.supported;
        sizes.request(row.image);
        compare(writer.asked.length, 0);
    }
}
