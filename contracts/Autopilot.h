#pragma once

#include <QString>
#include <QStringList>

namespace Autopilot {

/// How strong a fault (noise, blur) was found to be. Stored as a plain number in image settings.
enum class Level : qint32 { Unknown = -1, None = 0, Low = 1, Medium = 2, High = 3, Severe = 4 };

/// The user's preferences that steer the analysis, as the front end's properties of the same
/// stem hold them. The defaults are those of a first start.
struct Preferences {
    bool recommendFilters = true;
    bool resizingSupported = true;
    bool enableDownscaling = true;

    QString faceDetection = QStringLiteral("auto");
    QStringList faceParts = {QStringLiteral("hair"), QStringLiteral("necks")};
    int faceStrength = 80;

    QString sharpeningModel = QStringLiteral("Auto");
    QStringList sharpenBlurs = {QStringLiteral("medium"), QStringLiteral("high")};
    int sharpenStrength = 3;

    QString upscalingModel = QStringLiteral("Auto");
    QString upscalingType = QStringLiteral("auto");
    float upscalingFactor = 2;
    int upscalingParam1Strength = 3;
    int upscalingParam2Strength = 3;
    int resolutionUnit = 1;
    float resolution = -1;

    QString denoisingModel = QStringLiteral("Auto");
    QString denoisingRawModel = QStringLiteral("Auto");
    QStringList denoiseLevels = {QStringLiteral("medium"), QStringLiteral("high"), QStringLiteral("severe")};
    QStringList denoiseRawLevels = {QStringLiteral("medium"), QStringLiteral("high"),
                                    QStringLiteral("severe")};
    int denoiseStrength = 3;
    int denoiseRawStrength = 3;

    QString conflictResolutionPref = QStringLiteral("auto");

    int exposureStrength = 25;
    int exposureRAWStrength = 8;
    int temperatureValue = 50;
    int opacityValue = 100;

    QString textModel = QStringLiteral("Auto");
    int textStrength = 50;
};

} // namespace Autopilot
