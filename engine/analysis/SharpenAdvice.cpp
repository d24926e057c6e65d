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
/// What is taken back of a blur whose kind is open: too little of it loses part of the gain, too much
/// makes a picture worse than it was.
constexpr double ShareIfUnsure = 0.85;
/// The sizes of discs are known to a twentieth.
constexpr double ShareOfDefocus = 0.97;

/// Smears a little longer than the model knows are taken back as far as it goes. Of longer ones it would
/// make something else: edges alone are helped, as a short smear's.
constexpr double LongestSmear = 1.2 * StrengthScale::sharpenMotion.maximum;
constexpr double ShortSmear = 3;

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

/// `factor` is the preference's; a defocus disk looks like a Gaussian of half its radius, a smear like
/// one of its length over the root of twelve.
std::array<Type, 5> typesFor(const AdviceInput &input, double blur, double factor) {
    const ImageStatistics &s = input.statistics;
    const double radius = s.defocusRadius > 0 ? factor * ShareOfDefocus * double(s.defocusRadius) : 2 * blur;
    const double length = s.motionLength;
    const double smear =
        length > 0 ? factor * (length > LongestSmear ? ShortSmear : length) : blur * std::sqrt(12.0);
    const double standard = sliderValue(StrengthScale::sharpenStandard, blur);
    return {{{QStringLiteral("standard"), QStringLiteral("Sharpen Standard v2"), false, QStringLiteral("std"),
              standard},
             {QStringLiteral("smallblur"), QStringLiteral("Sharpen Standard v2"), false,
              QStringLiteral("smb"), standard},
             {QStringLiteral("strong"), QStringLiteral("Sharpen Strong"), false, QStringLiteral("stg"),
              sliderValue(StrengthScale::sharpenStrong, blur)},
             {QStringLiteral("lensblur"), QStringLiteral("Sharpen Standard"), true, QStringLiteral("slens"),
              sliderValue(StrengthScale::sharpenLens, radius)},
             {QStringLiteral("motionblur"), QStringLiteral("Sharpen Standard"), false, QStringLiteral("smot"),
              sliderValue(StrengthScale::sharpenMotion, smear)}}};
}

QString wantedType(const AdviceInput &input) {
    const QString &wanted = input.preferences.sharpeningModel;
    if (wanted == QStringLiteral("smallblur"))
        return QStringLiteral("standard");
    if (wanted != QStringLiteral("Auto"))
        return wanted;
    switch (input.findings.kind) {
    case BlurKind::Motion:
        return QStringLiteral("motionblur");
    case BlurKind::Defocus:
        return QStringLiteral("lensblur");
    case BlurKind::Soft:
        return input.findings.blur > StrengthScale::sharpenStandard.maximum ? QStringLiteral("strong")
                                                                            : QStringLiteral("standard");
    case BlurKind::Unknown:
        break;
    }
    // Learned from Gaussians and discs alike.
    return QStringLiteral("strong");
}

QString reasonFor(BlurKind kind) {
    if (kind == BlurKind::Motion)
        return QStringLiteral("The picture is smeared in one direction");
    return kind == BlurKind::Defocus ? QStringLiteral("The picture is out of focus")
                                     : QStringLiteral("The sharpest edges are wide");
}

} // namespace

Advice adviseSharpen(const AdviceInput &input) {
    const QStringList &levels = input.preferences.sharpenBlurs;
    const double factor = strengthFactor(input.preferences.sharpenStrength);
    const double found = input.findings.blur;
    const double excess = std::sqrt(std::max(0.0, found * found - NaturalBlur * NaturalBlur));
    const double share = input.findings.kind == BlurKind::Unknown ? ShareIfUnsure : 1;
    const double blur = factor * std::max(share * excess, Thresholds::RestingBlur);
    const double noise = std::clamp(input.findings.noise / MostDenoise, SmallestStrength, 1.0);

    Advice advice;
    advice.category = QStringLiteral("Sharpen");
    advice.enabled = levels.contains(nameOf(input.findings.blurLevel));
    const std::array<Type, 5> types = typesFor(input, blur, factor);
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
        advice.reason = reasonFor(input.findings.kind);
    else if (levels.isEmpty())
        advice.reason = QStringLiteral("The preferences leave blur alone");
    else
        advice.reason = QStringLiteral("There is less blur than the preferences ask for");
    return advice;
}

} // namespace Analysis
