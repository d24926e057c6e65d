#include "cli/OptionValues.h"

#include "cli/Console.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

struct Range {
    QString name;
    int maximum;
};

bool readUpTo(const Range &range, const QString &value, int &target) {
    bool isNumber = false;
    target = value.toInt(&isNumber, 10);
    const QString expected = u"Expected number from 0 to "_s + QString::number(range.maximum);
    if (!isNumber) {
        console::errLine(u"[CLI] Invalid "_s + range.name + u" given: "_s + value);
        console::errLine(expected);
        return false;
    }
    if (unsigned(target) > unsigned(range.maximum)) {
        console::errLine(u"[CLI] Invalid "_s + range.name + u" given"_s);
        console::errLine(expected + u", but got "_s + QString::number(target));
        return false;
    }
    return true;
}

} // namespace

bool optionValues::outputFolder(const QString &value, BatchOptions &options) {
    QString folder = value;
    // A Windows shell leaves the quote behind when a quoted path ends in a backslash.
    if (folder.endsWith(u'"'))
        folder.chop(1);
    if (!QFileInfo(folder).isDir() && !QDir(folder).mkpath(u"."_s)) {
        console::errLine(u"Invalid output path: "_s + folder);
        return false;
    }
    options.outputFolder = folder;
    return true;
}

bool optionValues::format(const QString &value, BatchOptions &options) {
    static const QMap<QString, OutputFormat> formats = {{u"preserve"_s, OutputFormat::Preserve},
                                                        {u"jpeg"_s, OutputFormat::Jpeg},
                                                        {u"jpg"_s, OutputFormat::Jpeg},
                                                        {u"png"_s, OutputFormat::Png},
                                                        {u"tif"_s, OutputFormat::Tiff},
                                                        {u"tiff"_s, OutputFormat::Tiff},
                                                        {u"dng"_s, OutputFormat::Dng}};
    const auto found = formats.constFind(value.toLower());
    if (found == formats.cend()) {
        console::err(u"Invalid file format specified:"_s + value +
                     u"Expected one of: jpg, jpeg, png, tif, tiff, dng, or preserve."_s);
        return false;
    }
    options.outputFormat = *found;
    return true;
}

bool optionValues::jpegQuality(const QString &value, BatchOptions &options) {
    return readUpTo({u"JPEG quality"_s, 100}, value, options.jpegQuality);
}

bool optionValues::pngCompression(const QString &value, BatchOptions &options) {
    return readUpTo({u"PNG compression"_s, 10}, value, options.pngCompression);
}

bool optionValues::bitDepth(const QString &value, BatchOptions &options) {
    bool isNumber = false;
    options.tiffBitDepth = value.toInt(&isNumber, 10);
    if (!isNumber) {
        console::errLine(u"Invalid bit depth given: "_s + value);
        console::errLine(u"Expected either 8 or 16."_s);
        return false;
    }
    if (options.tiffBitDepth != 8 && options.tiffBitDepth != 16) {
        console::errLine(u"Invalid bit depth given"_s);
        console::errLine(u"Expected either 8 or 16, but got "_s + QString::number(options.tiffBitDepth));
        return false;
    }
    return true;
}

bool optionValues::tiffCompression(const QString &value, BatchOptions &options) {
    static const QMap<QString, TiffCompression> compressions = {{u"none"_s, TiffCompression::None},
                                                                {u"lzw"_s, TiffCompression::Lzw},
                                                                {u"zip"_s, TiffCompression::Zip}};
    const auto found = compressions.constFind(value.toLower());
    if (found == compressions.cend()) {
        console::errLine(u"Invalid TIFF compression given: "_s + value);
        console::errLine(u"Expected one of \"none\", \"lzw\", or \"zip\""_s);
        return false;
    }
    options.tiffCompression = *found;
    return true;
}

bool optionValues::presetName(const QString &value, BatchOptions &options) {
    options.presetName = value;
    if (value.isEmpty())
        console::errLine(u"Invalid preset given: it has no name"_s);
    return !value.isEmpty();
}
