// What the writer is given for a format, as attributes of the image library. `choice` holds the settings of saving:
// saveImageFormat, saveJpegQuality, savePngCompression, savePngBitDepth, saveTiffCompression, saveTiffBitDepth,
// saveDngCompression.
export function writerOptions(extension, choice) {
    const preserves = choice.saveImageFormat === "preserve";
    switch (extension.toLowerCase()) {
    case "jpg":
    case "jpeg":
        return { "Compression": "jpeg:" + (preserves ? 95 : choice.saveJpegQuality) };
    case "png":
        return {
            "png:compressionLevel": choice.savePngCompression,
            "compression": "huffman",
            "oiio:BitsPerSample": preserves ? 0 : Number(choice.savePngBitDepth)
        };
    case "tif":
    case "tiff":
        return {
            "compression": choice.saveTiffCompression,
            "oiio:BitsPerSample": Number(choice.saveTiffBitDepth),
            "tiff:RowsPerStrip": 1, // writing is several times faster with it
            "tiff:zipquality": 4
        };
    case "dng":
        return { "compressed": choice.saveDngCompression };
    default:
        return {};
    }
}

export function sameOptions(a, b) {
    const keys = Object.keys(a);
    return keys.length === Object.keys(b).length && keys.every(key => String(a[key]) === String(b[key]));
}
