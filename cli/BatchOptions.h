#pragma once

#include "contracts/FilterNames.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

enum class OutputFormat { Preserve = 0, Jpeg = 1, Png = 2, Tiff = 3, Dng = 4 };
enum class TiffCompression { None = 0, Zip = 1, Lzw = 2 };

/// A preset's filters, in the shapes of TControls::applyPresetToImage.
struct BatchPreset {
    QVariantMap controls;
    QStringList filterOrder; ///< empty: there is no preset
};

/// What the command line of a batch run decides.
struct BatchOptions {
    bool validArguments = true; ///< cleared by a bad option; the run then ends before any work
    bool recursive = false;
    bool overwrite = false;
    bool showSettings = false;
    bool skipProcessing = false;
    bool keepGoing = false; ///< go on past a file that fails, and report at the end

    QSet<QString> inputDirectories; ///< every directory named, cleaned
    QString outputFolder;           ///< empty: each picture goes beside its source

    OutputFormat outputFormat = OutputFormat::Preserve;
    int jpegQuality = 95;   ///< 0 to 100
    int pngCompression = 2; ///< 0 to 10
    TiffCompression tiffCompression = TiffCompression::None;
    int tiffBitDepth = 16; ///< 8 or 16

    QMultiMap<QString, QString> overrides; ///< category to "key=value", the latest written first
    bool overrideAutopilot = false;

    QString presetName; ///< as it was written
    BatchPreset preset; ///< what it names, read once the command line is; see PresetOption.h

    QStringList missingPaths; ///< named but not there; filled under keepGoing only
};

/// Part of an option's name to the category that it switches on. The order decides ties.
inline QMap<QString, QString> categoryStems() {
    return {{QStringLiteral("color"), Categories::WhiteBalance},
            {QStringLiteral("face"), Categories::FaceRecovery},
            {QStringLiteral("light"), Categories::Exposure},
            {QStringLiteral("nois"), Categories::Denoise},
            {QStringLiteral("raw"), Categories::Raw},
            {QStringLiteral("sharpen"), Categories::Sharpen},
            {QStringLiteral("upscal"), Categories::Enhance}};
}
