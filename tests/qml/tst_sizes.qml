import QtQuick
import QtTest
import imageenhance
import "../../imageenhance/utils/writerOptions.mjs" as Writer

WindowParts {
    id: parts

    name: "SizeEstimates"

    readonly property var choice: ({ saveJpegQuality: 80, savePngCompression: 2, savePngBitDepth: "16", saveTiffCompression: "zip", saveTiffBitDepth: "16", saveDngCompression: "1" })

    function initTestCase(): void {
        parts.pipeline.sizes.estimated.connect(path => parts.log.push(path));
        parts.pipeline.sizes.failed.connect((path, why) => parts.log.push(path + " " + why));
    }

    function init(): void {
        parts.settings.saveImageFormat = "preserve";
        parts.settings.saveJpegQuality = 80;
        parts.backends.host.fileSizeEstimationSupported = true;
        parts.backends.failWriting("/full.jpg", "No room.");
        parts.open(["/a.jpg", "/b.jpg"]);
        parts.panel.updateFileSizeEstimate(0);
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
        const options = Writer.writerOptions(row.extension, Object.assign({ saveImageFormat: row.format }, choice));
        compare(options, row.options);
        verify(Writer.sameOptions(options, Object.assign({}, row.options)));
        verify(!Writer.sameOptions(options, Object.assign({ x: 1 }, row.options)), "more of them");
    }

    function test_answers_data(): var {
        return [
            { tag: "right", log: ["/a.jpg"], size: 2400000 },
            { tag: "of another image", meanwhile: () => parts.controls.setCurrentIndex(1), log: ["/a.jpg"] },
            { tag: "of another format", meanwhile: () => parts.settings.saveImageFormat = "png", log: ["/a.jpg"] },
            { tag: "of another quality", meanwhile: () => { parts.settings.saveImageFormat = "jpg"; parts.settings.saveJpegQuality = 70; }, log: ["/a.jpg"] },
            { tag: "failed", path: "/full.jpg", log: ["/full.jpg No room."], error: "No room." },
            { tag: "a save failed", meanwhile: () => parts.writer.errorSaving("/out/a.jpg", "No room."), log: ["/a.jpg"], size: 2400000 }
        ];
    }

    // The answer comes by the event loop: what stands between is what a user does meanwhile.
    function test_answers(row): void {
        const path = row.path ?? "/a.jpg";
        if (row.path)
            parts.open([path]);
        parts.panel.estimateFileSize();
        row.meanwhile?.();
        tryVerify(() => log.length > 0, 60000);
        compare(log, row.log);
        compare([parts.panel.fileSize, parts.panel.fileSizeError], [row.size ?? 0, row.error ?? ""]);
        if (!row.error)
            compare(parts.backends.estimates(), [{ path, options: { "Compression": "jpeg:95" } }]);
        parts.writer.errorSaving(path, "No room.");
        compare(log, row.log, "one answer to a question");
    }

    function test_nothing_is_asked(): void {
        parts.pipeline.sizes.request({});
        parts.backends.host.fileSizeEstimationSupported = false;
        parts.pipeline.sizes.request({ filepath: "/a.jpg" });
        wait(50);
        compare([parts.backends.estimates(), log], [[], []]);
    }
}
