#include "engine/analysis/Advice.h"
#include "engine/analysis/Thresholds.h"
#include "engine/filters/StrengthScale.h"

#include <algorithm>
#include <cmath>

namespace Analysis {

namespace {

constexpr double MostDenoise = 15; ///< noise that the sharpening models take away at full strength
/// Clean photographs have edges this wide; sharpening is for what exceeds it.
constexpr double NaturalBlur = 0.3;
/// The sharpest edges are measured; blur that lies evenly on a photograph is this much wider.
constexpr double Typical = 1.1;

/// A sharpening type as the preferences and the sliders know it.
struct Type {
    QString name;
    QString model;
    bool lens;
    QString prefix; ///< of the pair of parameters that remembers its sliders
    double blur;    ///< its strength
};

double sliderValue(const StrengthScale::Linear &scale, double width) {
    return std::max(SmallestStrength, scale.strength(width));
}

std::array<Type, 5> typesFor(const AdviceInput &input, double blur) {
    // A defocus disk looks like a Gaussian of half its radius, a smear like one of its length over
    // the root of twelve.
    const double smear =
        input.statistics.motionBlur ? double(input.statistics.motionLength) : blur * std::sqrt(12.0);
    const double standard = sliderValue(StrengthScale::sharpenStandard, blur);
    return {{{QStringLiteral("standard"), QStringLiteral("Sharpen Standard v2"), false, QStringLiteral("std"),
              standard},
             {QStringLiteral("smallblur"), QStringLiteral("Sharpen Standard v2"), false,
              QStringLiteral("smb"), standard},
             {QStringLiteral("strong"), QStringLiteral("Sharpen Strong"), false, QStringLiteral("stg"),
              sliderValue(StrengthScale::sharpenStrong, blur)},
             {QStringLiteral("lensblur"), QStringLiteral("Sharpen Standard"), true, QStringLiteral("slens"),
              sliderValue(StrengthScale::sharpenLens, 2 * blur)},
             {QStringLiteral("motionblur"), QStringLiteral("Sharpen Standard"), false, QStringLiteral("smot"),
              sliderValue(StrengthScale::sharpenMotion, smear)}}};
}

QString wantedType(const AdviceInput &input) {
    const QString &wanted = input.preferences.sharpeningModel;
    if (wanted == QStringLiteral("smallblur"))
        return QStringLiteral("standard");
    if (wanted != QStringLiteral("Auto"))
        return wanted;
    if (input.findings.motion)
        return QStringLiteral("motionblur");
    return Typical * input.findings.blur > StrengthScale::sharpenStandard.maximum
               ? QStringLiteral("strong")
               : QStringLiteral("standard");
}

} // namespace

Advice adviseSharpen(const AdviceInput &input) {
    const QStringList &levels = input.preferences.sharpenBlurs;
    const double factor = strengthFactor(input.preferences.sharpenStrength);
    const double found = input.findings.blur;
    const double excess = std::sqrt(std::max(0.0, found * found - NaturalBlur * NaturalBlur));
    const double blur = factor * std::max(Typical * excess, Thresholds::RestingBlur);
    const double noise = std::clamp(input.findings.noise / MostDenoise, SmallestStrength, 1.0);

    Advice advice;
    advice.category = QStringLiteral("Sharpen");
    advice.enabled = levels.contains(nameOf(input.findings.blurLevel));
    const std::array<Type, 5> types = typesFor(input, blur);
    const Type *chosen = &types.front();
    const QString wanted = wantedType(input);
    for (const Type &type : types) {
        advice.parameters.insert(type.prefix + QStringLiteral("_blur"), type.blur);
        advice.parameters.insert(type.prefix + QStringLiteral("_noise"), noise);
        if (type.name == wanted)
            chosen = &type;
    }
    advice.model = chosen->model;
    advice.parameters.insert(QStringLiteral("isLens"), chosen->lens);
    advice.parameters.insert(QStringLiteral("param1"), noise);
    advice.parameters.insert(QStringLiteral("param2"), chosen->blur);
    advice.measured = found;
    advice.threshold = levels.contains(QStringLiteral("low"))      ? Thresholds::BlurLow
                       : levels.contains(QStringLiteral("medium")) ? Thresholds::BlurMedium
                                                                   : Thresholds::BlurHigh;
    if (advice.enabled)
        advice.reason = input.findings.motion ? QStringLiteral("The picture is smeared in one direction")
                                              : QStringLiteral("The sharpest edges are wide");
    else if (levels.isEmpty())
        advice.reason = QStringLiteral("The preferences leave blur alone");
    else
        advice.reason = QStringLiteral("There is less blur than the preferences ask for");
    return advice;
}

} // namespace Analysis
