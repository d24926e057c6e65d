#pragma once

#include <QCoreApplication>
#include <QDateTime>
#include <QStringList>
#include <QVariantList>

/// A preference's default from what its row says: texts for a text or a list of texts, and otherwise
/// what the type is constructed from.
template <typename T, typename... Parts>
T preferenceValue(const Parts &...parts) {
    if constexpr (std::is_same_v<T, QStringList>)
        return QStringList{QString::fromLatin1(parts)...};
    else if constexpr (std::is_same_v<T, QString>)
        return QString::fromLatin1(parts...);
    else if constexpr (std::is_same_v<T, QVariantList>)
        return QVariantList{parts...};
    else
        return T(parts...);
}

inline QVariantMap outputFolderChoice(const char *text, const char *value) {
    return {{QStringLiteral("text"), QCoreApplication::translate("MainSettings", text)},
            {QStringLiteral("value"), QString::fromLatin1(value)}};
}

// The persistent preferences. A row here is all that a new one needs: it becomes a key of the store, a
// property of MainSettings, an entry of preferenceTable() and, in the first two tables, a property of the
// engine.
//
// ROW(type, key, (default), allowed)
//   Allowed, besides what the type says: anything(), oneOf(...) or within(lowest, highest). Anything else
//   found in the store is replaced by the default.
// ROW(type, key, (default), allowed, type in the engine, property of the engine, its setter[, console])
//   Where the console differs: underKey(...), byDefault(...) with what its summary shows instead of
//   that.
// clang-format off

// What the analysis is given.
#define AUTOPILOT_PREFERENCES(ROW) \
    ROW(bool, autopilotRecommendFilters, (false), anything(), bool, recommendFilters, setRecommendFilters) \
    ROW(QString, autopilotFaceDetect, ("auto"), oneOf("auto", "all", "subject", "none"), QString, faceDetection, setFaceDetection) \
    ROW(QStringList, faceParts, ("hair", "necks"), anything(), QStringList, faceParts, setFaceParts) \
    ROW(int, autopilotFaceStrength, (80), within(1, 100), int, faceStrength, setFaceStrength) \
    ROW(QString, autopilotSharpeningModel, ("Auto"), anything(), QString, sharpeningModel, setSharpeningModel) \
    ROW(QStringList, autopilotSharpenBlurs, ("medium", "high"), anything(), QStringList, sharpenBlurs, setSharpenBlurs) \
    ROW(int, autopilotSharpenStrength, (3), within(0, 4), int, sharpenStrength, setSharpenStrength) \
    ROW(bool, autopilotEnableDownscaling, (false), anything(), bool, enableDownscaling, setEnableDownscaling) \
    ROW(QString, autopilotUpscalingModel, ("Auto"), anything(), QString, upscalingModel, setUpscalingModel) \
    ROW(QString, autopilotUpscalingType, ("auto"), oneOf("auto", "none", "scale", "width", "height", "longest", "shortest"), QString, upscalingType, setUpscalingType) \
    ROW(double, autopilotUpscalingFactor, (2), within(0.001, 1e6), float, upscalingFactor, setUpscalingFactor) \
    ROW(int, autopilotUpscalingParam1Strength, (3), within(0, 4), int, upscalingParam1Strength, setUpscalingParam1Strength) \
    ROW(int, autopilotUpscalingParam2Strength, (3), within(0, 4), int, upscalingParam2Strength, setUpscalingParam2Strength) \
    ROW(int, autopilotResolutionUnit, (1), within(1, 3), int, resolutionUnit, setResolutionUnit) \
    ROW(double, autopilotDefaultResolution, (-1), within(-1, 1e6), float, resolution, setResolution) \
    ROW(QString, autopilotDenoisingModel, ("Auto"), anything(), QString, denoisingModel, setDenoisingModel) \
    ROW(QStringList, autopilotDenoiseLevels, ("medium", "high", "severe"), anything(), QStringList, denoiseLevels, setDenoiseLevels, \
        byDefault(texts("medium", "high", "severe"), texts("medium", "high"))) \
    ROW(int, autopilotDenoiseStrength, (3), within(0, 4), int, denoiseStrength, setDenoiseStrength) \
    ROW(QString, autopilotDenoisingRawModel, ("Auto"), anything(), QString, denoisingRawModel, setDenoisingRawModel) \
    ROW(QStringList, autopilotDenoiseRawLevels, ("low", "medium", "high", "severe"), anything(), QStringList, denoiseRawLevels, setDenoiseRawLevels, \
        byDefault(texts("medium", "high", "severe"), texts("medium", "high"))) \
    ROW(int, autopilotDenoiseRawStrength, (3), within(0, 4), int, denoiseRawStrength, setDenoiseRawStrength) \
    ROW(QString, autopilotConflictResolutionPref, ("auto"), oneOf("auto", "denoise", "sharpen"), QString, conflictResolutionPref, setConflictResolutionPref) \
    ROW(int, autopilotNonRAWExposureStrength, (25), within(-25, 75), int, exposureStrength, setExposureStrength, underKey("autopilotExposureStrength")) \
    ROW(int, autopilotRAWExposureStrength, (8), within(-25, 75), int, exposureRAWStrength, setExposureRAWStrength, underKey("autopilotExposureRAWStrength")) \
    ROW(int, autopilotTemperatureValue, (50), within(1, 100), int, temperatureValue, setTemperatureValue) \
    ROW(int, autopilotOpacityValue, (100), within(1, 100), int, opacityValue, setOpacityValue) \
    ROW(QString, autopilotTextModel, ("Auto"), anything(), QString, textModel, setTextModel) \
    ROW(int, autopilotTextStrength, (3), within(0, 4), int, textStrength, setTextStrength)

// What else the engine follows.
#define RUN_PREFERENCES(ROW) \
    ROW(int, deviceId, (-2), within(-2, 1024), int, deviceId, setDeviceId) \
    ROW(QColor, maskOverlayColor, (Qt::red), anything(), QColor, overlayColor, setOverlayColor) \
    ROW(bool, useNeuralEngine, (true), anything(), bool, useNeuralEngine, setUseNeuralEngine)

#define WINDOW_PREFERENCES(ROW) \
    ROW(QRectF, windowGeometry, (), anything()) \
    ROW(int, windowVisibility, (2), oneOf(2, 4, 5)) /* Windowed, Maximized, FullScreen */ \
    ROW(QString, lastAppVersion, (""), anything()) \
    ROW(QString, colorScheme, ("auto"), oneOf("auto", "dark", "light")) \
    ROW(int, preferencesTab, (0), within(0, 20)) \
    ROW(QStringList, recentFiles, (), anything()) \
    ROW(QDateTime, snoozeUpdateDialogUntil, (QDate(1970, 1, 1), QTime(0, 0)), anything()) \
    ROW(int, lastViewMode, (1), within(0, 2)) \
    ROW(double, splitViewXPos, (0.5), within(0, 1)) \
    ROW(QPointF, dragState, (), anything()) \
    ROW(bool, rightPanelCollapsed, (false), anything()) \
    ROW(bool, updateZoomAfterUpscale, (false), anything()) \
    ROW(bool, suggestionsAndMaskingCarousel, (false), anything()) \
    ROW(QString, lastShowedInpaintChangesWarning, (""), anything()) \
    ROW(bool, showInpaintMacWarning, (true), anything()) \
    ROW(QString, lastShowedInpaintCompileButton, (""), anything()) \
    ROW(bool, showHelpPrompts, (true), anything()) \
    ROW(bool, promptRawLRC, (true), anything()) \
    ROW(int, exportsCount, (0), anything()) \
    ROW(bool, hotPixelCorrection, (false), anything()) \
    ROW(bool, legacyModels, (false), anything()) \
    ROW(bool, lensCorrectionEnabled, (true), anything()) \
    ROW(bool, useAdobeDng, (true), anything()) \
    ROW(bool, checkDiskSpace, (true), anything()) \
    ROW(bool, modelDownloads, (true), anything()) \
    ROW(bool, srgbFallback, (false), anything()) \
    ROW(bool, developerMode, (false), anything()) \
    ROW(QString, autopilotSubjectType, ("Subject"), oneOf("Subject", "All", "Background", "Portrait", "Landscape", "Sky", "none", "all")) \
    ROW(QString, autopilotOutputResolutionType, ("original"), oneOf("original", "custom")) \
    ROW(int, resolutionUnit, (1), within(1, 3)) \
    ROW(bool, aiBrush, (true), anything()) \
    ROW(QString, subjectMaskBrush, ("basic-add"), anything()) \
    ROW(QString, inpaintMaskBrush, ("basic-add"), anything()) \
    ROW(QString, textMaskBrush, ("basic-add"), anything()) \
    ROW(double, maskOverlayOpacity, (0.5), within(0, 1)) \
    ROW(bool, autoCloseImages, (false), anything()) \
    ROW(QString, savePrefix, (""), anything()) \
    ROW(QString, saveSuffix, ("-orvane"), anything()) \
    ROW(bool, saveAppendFilters, (true), anything()) \
    ROW(bool, saveAllowOverwrite, (false), anything()) \
    ROW(QString, saveFolderValue, ("preserve"), anything()) \
    ROW(QString, saveImageFormat, ("preserve"), anything()) \
    ROW(int, saveJpegQuality, (95), within(0, 100)) \
    ROW(int, savePngCompression, (2), within(0, 9)) \
    ROW(QString, savePngBitDepth, ("16"), anything()) \
    ROW(QString, saveTiffCompression, ("zip"), anything()) \
    ROW(QString, saveTiffBitDepth, ("16"), anything()) \
    ROW(QString, saveDngCompression, ("1"), anything()) \
    ROW(QVariantList, outputFolderList, (outputFolderChoice(QT_TRANSLATE_NOOP("MainSettings", "Original folder"), "preserve"), \
                                         outputFolderChoice(QT_TRANSLATE_NOOP("MainSettings", "Browse..."), "browse")), anything()) \
    ROW(int, addToCollections, (-1), within(-1, 1)) /* OptionalBoolean */ \
    ROW(bool, allowEventTracking, (true), anything()) \
    ROW(bool, defaultCanUploadImages, (false), anything())

// clang-format on

#define ENGINE_PREFERENCES(ROW) AUTOPILOT_PREFERENCES(ROW) RUN_PREFERENCES(ROW)
#define PREFERENCES(ROW) ENGINE_PREFERENCES(ROW) WINDOW_PREFERENCES(ROW)
