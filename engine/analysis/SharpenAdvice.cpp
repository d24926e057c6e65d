#include "contracts/FilterNames.h"
#include "engine/analysis/Advice.h"
#include "engine/analysis/Thresholds.h"

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
constexpr double LongestSmear = 1.2; ///< of the model's longest
constexpr double ShortSmear = 3;
/// The spread of a disc is this share of its radius, that of a line this one of its length.
constexpr double DiscSpread = 0.5;
const double LineSpread = 1 / std::sqrt(12.0);

/// A sharpening type as the preferences and the sliders know it.
struct Type {
    QString name;
    QString model;
    bool lens;
    QString prefix; ///< of the pair of parameters that remembers its sliders
    double spread;  ///< of the blur that it takes back
};

QStringList flagsOf(const Type &type) {
    return type.lens ? QStringList{Roles::Lens} : QStringList();
}

double reachOf(const AdviceInput &input, const QString &name) {
    const ModelDefinition *model = input.models.find(Categories::Sharpen, name);
    return model ? model->reach(ModelDefinition::Blur) : 0;
}

/// `factor` is the preference's.
std::array<Type, 5> typesFor(const AdviceInput &input, double blur, double factor) {
    const ImageStatistics &s = input.statistics;
    const double disc =
        s.defocusRadius > 0 ? factor * ShareOfDefocus * double(s.defocusRadius) * DiscSpread : blur;
    const double length = s.motionLength;
    const bool tooLong = length * LineSpread > LongestSmear * reachOf(input, Models::SharpenStandard);
    const double line = length > 0 ? factor * (tooLong ? ShortSmear : length) * LineSpread : blur;
    return {{{QStringLiteral("standard"), Models::SharpenStandardV2, false, QStringLiteral("std"), blur},
             {QStringLiteral("smallblur"), Models::SharpenStandardV2, false, QStringLiteral("smb"), blur},
             {QStringLiteral("strong"), Models::SharpenStrong, false, QStringLiteral("stg"), blur},
             {QStringLiteral("lensblur"), Models::SharpenStandard, true, QStringLiteral("slens"), disc},
             {QStringLiteral("motionblur"), Models::SharpenStandard, false, QStringLiteral("smot"), line}}};
}

/// The name of a type, or of a model that has none.
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
        return input.findings.blur > reachOf(input, Models::SharpenStandardV2) ? QStringLiteral("strong")
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

const QString BlurSuffix = QStringLiteral("_blur");
const QString NoiseSuffix = QStringLiteral("_noise");

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
    advice.category = Categories::Sharpen;
    advice.enabled = levels.contains(nameOf(input.findings.blurLevel));
    const std::array<Type, 5> types = typesFor(input, blur, factor);
    const QString wanted = wantedType(input);
    Type chosen = types.front();
    if (input.models.models(Categories::Sharpen).contains(wanted))
        chosen.model = wanted;
    for (const Type &type : types) {
        const ModelDefinition *model = input.models.find(Categories::Sharpen, type.model);
        advice.parameters.insert(type.prefix + BlurSuffix,
                                 strengthFor(model, ModelDefinition::Blur, type.spread, flagsOf(type)));
        advice.parameters.insert(type.prefix + NoiseSuffix, noise);
        if (type.name == wanted)
            chosen = type;
    }
    advice.model = chosen.model;
    const auto valueOf = [&](const ModelDefinition &model,
                             const ParameterDefinition &parameter) -> std::optional<double> {
        if (parameter.role == Roles::Strength)
            return strengthFor(&model, ModelDefinition::Blur, chosen.spread, flagsOf(chosen));
        if (parameter.role == Roles::Lens)
            return chosen.lens;
        return parameter.role == Roles::Denoise ? std::optional(noise) : std::nullopt;
    };
    adviseParameters(input, valueOf, advice);
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

void leaveToDenoising(const AdviceInput &input, const Advice &noise, Advice &sharpen) {
    if (!noise.enabled)
        return;
    for (const ModelDefinition &model : input.models.models(sharpen.category)) {
        if (const ParameterDefinition *parameter = model.byRole(Roles::Denoise))
            sharpen.parameters.insert(parameter->name, parameter->limited(SmallestStrength));
    }
    for (auto [key, value] : sharpen.parameters.asKeyValueRange()) {
        if (key.endsWith(NoiseSuffix))
            value = SmallestStrength;
    }
}

} // namespace Analysis
