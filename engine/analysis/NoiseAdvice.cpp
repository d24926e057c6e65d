#include "contracts/FilterNames.h"
#include "engine/analysis/Advice.h"
#include "engine/analysis/Thresholds.h"

#include <algorithm>

namespace Analysis {

namespace {

constexpr double CoarseGrain = 0.6; ///< grain of this size, in pixels, survives removal of fine noise

QString denoiseModel(double noise) {
    if (noise >= Thresholds::NoiseExtreme)
        return Models::SevereNoise;
    return noise >= Thresholds::NoiseSevere ? Models::SevereNoiseBeta : Models::LowLightBeta;
}

QString rawModel(const AdviceInput &input) {
    // Files that hold colours instead of a mosaic: the reader says so.
    if (input.image.metadata.value(QStringLiteral("linearRaw")).toBool())
        return Models::LinearRaw;
    if (input.preferences.denoisingRawModel != QStringLiteral("Auto"))
        return input.preferences.denoisingRawModel;
    return input.findings.noise >= Thresholds::NoiseSevere ? Models::RawStandard : Models::RawNative;
}

/// `noise` on the 8-bit scale. What a model does besides removing noise is left at its minimum.
ValueOf valuesFor(const AdviceInput &input, double noise) {
    const double grain = std::clamp(double(input.statistics.grainSize) - CoarseGrain, 0.0, 1.0);
    return [=](const ModelDefinition &model, const ParameterDefinition &parameter) -> std::optional<double> {
        if (parameter.role == Roles::Strength)
            return strengthFor(&model, ModelDefinition::Noise, noise);
        // A model that starts without it is for fine noise.
        if (parameter.role == Roles::Grain && parameter.initial > parameter.minimum)
            return grain;
        const bool secondary = parameter.role == Roles::Grain || parameter.role == Roles::Deblur ||
                               parameter.role == Roles::Detail;
        return secondary ? std::optional(parameter.minimum) : std::nullopt;
    };
}

void adviseDenoise(const AdviceInput &input, Advice &advice) {
    const QString &wanted = input.preferences.denoisingModel;
    advice.category = Categories::Denoise;
    advice.model = wanted == QStringLiteral("Auto") ? denoiseModel(input.findings.noise) : wanted;
    advice.enabled = input.preferences.denoiseLevels.contains(nameOf(input.findings.noiseLevel));
}

void adviseRaw(const AdviceInput &input, Advice &advice) {
    // Camera files are always denoised as far as the list allows: no noise counts as low.
    const Autopilot::Level level = std::max(input.findings.noiseLevel, Autopilot::Level::Low);
    advice.category = Categories::Raw;
    advice.model = rawModel(input);
    advice.enabled = input.preferences.denoiseRawLevels.contains(nameOf(level));
}

} // namespace

Advice adviseNoise(const AdviceInput &input) {
    const bool raw = input.image.isRaw;
    const int strength = raw ? input.preferences.denoiseRawStrength : input.preferences.denoiseStrength;
    const QStringList &levels = raw ? input.preferences.denoiseRawLevels : input.preferences.denoiseLevels;
    const double found = input.findings.noise;
    const double noise = strengthFactor(strength) * std::max(found, raw ? 0.0 : Thresholds::RestingNoise);
    Advice advice;
    if (raw)
        adviseRaw(input, advice);
    else
        adviseDenoise(input, advice);
    adviseParameters(input, valuesFor(input, noise), advice);
    advice.parameters.insert(Params::Auto, true);
    advice.measured = found;
    advice.threshold = levels.contains(QStringLiteral("low"))      ? Thresholds::NoiseLow
                       : levels.contains(QStringLiteral("medium")) ? Thresholds::NoiseMedium
                       : levels.contains(QStringLiteral("high"))   ? Thresholds::NoiseHigh
                                                                   : Thresholds::NoiseSevere;
    if (advice.enabled)
        advice.reason = QStringLiteral("The noise is worth removing");
    else if (levels.isEmpty())
        advice.reason = QStringLiteral("The preferences leave noise alone");
    else
        advice.reason = QStringLiteral("There is less noise than the preferences ask for");
    return advice;
}

} // namespace Analysis
