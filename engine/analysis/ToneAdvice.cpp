#include "contracts/FilterNames.h"
#include "engine/analysis/Advice.h"
#include "engine/analysis/Thresholds.h"

#include <algorithm>
#include <cmath>

namespace Analysis {

namespace {

/// No choice of models is offered here: the first one.
QString onlyModel(const AdviceInput &input, const QString &category) {
    const ModelDefinition *model = input.models.find(category, {});
    return model ? model->model : QString();
}

} // namespace

Advice adviseExposure(const AdviceInput &input) {
    const ImageStatistics &s = input.statistics;
    const Autopilot::Preferences &preferences = input.preferences;
    const bool dark = s.lumaMedian < Thresholds::DarkMedian && s.lumaHigh < Thresholds::DarkHighest;
    const bool bright = s.lumaMedian > Thresholds::BrightMedian && s.lumaLow > Thresholds::BrightLowest;
    const int strength = input.image.isRaw ? preferences.exposureRAWStrength : preferences.exposureStrength;
    // A picture of one tone has no exposure to judge. A camera file would lose its format on export.
    const bool hasContrast = s.lumaHigh - s.lumaLow > 0.05f;

    Advice advice;
    advice.category = Categories::Exposure;
    advice.model = onlyModel(input, advice.category);
    advice.enabled = (dark || bright) && hasContrast && !input.image.isRaw;
    adviseParameters(input, byRole({{Roles::Strength, strength / 100.0}}), advice);
    advice.measured = double(s.lumaMedian);
    advice.threshold = s.lumaMedian > 0.5f ? Thresholds::BrightMedian : Thresholds::DarkMedian;
    advice.reason = dark     ? QStringLiteral("The picture is dark throughout")
                    : bright ? QStringLiteral("The picture is bright throughout")
                             : QStringLiteral("The exposure is within the usual range");
    return advice;
}

Advice adviseColour(const AdviceInput &input) {
    const ImageStatistics &s = input.statistics;
    double cast = 0;
    for (const float channel : {s.illuminant[0], s.illuminant[2]})
        cast = std::max(cast, std::abs(std::log(std::max(0.01, double(channel)))));

    Advice advice;
    advice.category = Categories::WhiteBalance;
    advice.model = onlyModel(input, advice.category);
    advice.enabled = cast >= Thresholds::Cast && double(s.castConfidence) >= Thresholds::CastConfidence &&
                     !input.image.isRaw;
    adviseParameters(input,
                     byRole({{Roles::Temperature, input.preferences.temperatureValue / 100.0},
                             {Roles::Opacity, input.preferences.opacityValue / 100.0}}),
                     advice);
    advice.measured = cast;
    advice.threshold = Thresholds::Cast;
    advice.reason = advice.enabled ? QStringLiteral("The light has a colour")
                                   : QStringLiteral("No clear cast of colour was found");
    return advice;
}

} // namespace Analysis
