#include "cli/WriterOptions.h"

#include "cli/Console.h"

#include <QDebug>

using namespace Qt::StringLiterals;

QString formatName(OutputFormat format) {
    switch (format) {
    case OutputFormat::Preserve:
        return u"Preserve"_s;
    case OutputFormat::Jpeg:
        return u"JPEG"_s;
    case OutputFormat::Png:
        return u"PNG"_s;
    case OutputFormat::Tiff:
        return u"TIFF"_s;
    case OutputFormat::Dng:
        return u"DNG"_s;
    }
    qCritical() << "Output format to string has invalid enum value:" << int(format);
    return u"Preserve"_s;
}

QString tiffCompressionName(TiffCompression compression) {
    switch (compression) {
    case TiffCompression::None:
        return u"none"_s;
    case TiffCompression::Zip:
        return u"zip"_s;
    case TiffCompression::Lzw:
        return u"lzw"_s;
    }
    console::errLine(u"Somehow got invalid enum value for Tiff Compression"_s);
    return u"none"_s;
}

namespace {

void repairTiffSettings(BatchOptions &options) {
    if (options.tiffCompression == TiffCompression::Lzw && options.tiffBitDepth == 16) {
        console::errLine(
            u"16-bit TIFF is not supported with LZW compression. Using Zip compression instead."_s);
        options.tiffCompression = TiffCompression::Zip;
    }
    if (options.tiffBitDepth != 8 && options.tiffBitDepth != 16) {
        console::errLine(u"Invalid TIFF bit depth: "_s + QString::number(options.tiffBitDepth));
        console::errLine(u"Defaulting to 16-bit TIFF output"_s);
        options.tiffBitDepth = 16;
    }
}

} // namespace

QVariantMap writerOptions(OutputFormat format, BatchOptions &options) {
    switch (format) {
    case OutputFormat::Jpeg:
        return {{u"Compression"_s, u"jpeg:%1"_s.arg(options.jpegQuality)}};
    case OutputFormat::Png:
        return {{u"png:compressionLevel"_s, options.pngCompression}};
    case OutputFormat::Tiff:
    case OutputFormat::Dng:
        repairTiffSettings(options);
        return {{u"compression"_s, tiffCompressionName(options.tiffCompression)},
                {u"oiio:BitsPerSample"_s, options.tiffBitDepth},
                {u"tiff:RowsPerStrip"_s, 1},
                {u"tiff:zipquality"_s, 4}};
    case OutputFormat::Preserve:
        break;
    }
    return {};
}
