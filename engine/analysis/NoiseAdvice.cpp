#include "engine/analysis/Advice.h"
#include "engine/analysis/Thresholds.h"
#include "engine/filters/StrengthScale.h"

#include <algorithm>

namespace Analysis {

namespace {

constexpr double CoarseGrain = 0.6; ///< grain of this size, in pixels, survives removal of fine noise
double sliderValue(const StrengthScale::Linear &scale, double noise) {
    return std::max(SmallestStrength, scale.strength(noise / 255));
}

QString denoiseModel(double noise) {
    if (noise >= Thresholds::NoiseExtreme)
        return QStringLiteral("Severe Noise");
    return noise >= Thresholds::NoiseSevere ? QStringLiteral("Severe Noise Beta")
                                            : QStringLiteral("Low Light Beta");
}

QString rawModel(const AdviceInput &input) {
    // Files that hold colours instead of a mosaic: the reader says so.
    if (input.image.metadata.value(QStringLiteral("linearRaw")).toBool())
        return QStringLiteral("Linear RAW");
    if (input.preferences.denoisingRawModel != QStringLiteral("Auto"))
        return input.preferences.denoisingRawModel;
    return input.findings.noise >= Thresholds::NoiseSevere ? QStringLiteral("RAW Standard")
                                                           : QStringLiteral("RAW Native");
}

void adviseDenoise(const AdviceInput &input, double noise, Advice &advice) {
    const QString &wanted = input.preferences.denoisingModel;
    advice.category = QStringLiteral("Denoise");
    advice.model = wanted == QStringLiteral("Auto") ? denoiseModel(input.findings.noise) : wanted;
    advice.enabled = input.preferences.denoiseLevels.contains(nameOf(input.findings.noiseLevel));
    advice.parameters = {
        {QStringLiteral("param1_normalv2"), sliderValue(StrengthScale::denoiseNormal, noise)},
        {QStringLiteral("param1_strongv2"), sliderValue(StrengthScale::denoiseStrong, noise)},
        {QStringLiteral("param1"), sliderValue(StrengthScale::denoiseExtreme, noise)},
        {QStringLiteral("param2_normalv2"), SmallestStrength},
        {QStringLiteral("param2_strongv2"), SmallestStrength},
        {QStringLiteral("param2"), SmallestStrength},
        {QStringLiteral("recover_detail"), 0.0},
        {QStringLiteral("auto"), true}};
}

void adviseRaw(const AdviceInput &input, double noise, Advice &advice) {
    const double grain = std::clamp(double(input.statistics.grainSize) - CoarseGrain, 0.0, 1.0);
    // Camera files are always denoised as far as the list allows: no noise counts as low.
    const Autopilot::Level level = std::max(input.findings.noiseLevel, Autopilot::Level::Low);
    advice.category = QStringLiteral("RAW");
    advice.model = rawModel(input);
    advice.enabled = input.preferences.denoiseRawLevels.contains(nameOf(level));
    advice.parameters = {{QStringLiteral("param1_native"), sliderValue(StrengthScale::rawNative, noise)},
                         {QStringLiteral("param1_standard"), sliderValue(StrengthScale::rawStandard, noise)},
                         {QStringLiteral("param2_native"), SmallestStrength},
                         {QStringLiteral("param2_standard"), SmallestStrength},
                         {QStringLiteral("param3_native"), 0.0},
                         {QStringLiteral("param3_standard"), grain},
                         {QStringLiteral("auto"), true}};
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
        adviseRaw(input, noise, advice);
    else
        adviseDenoise(input, noise, advice);
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
