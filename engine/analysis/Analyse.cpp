#include "engine/analysis/Analyse.h"

#include "contracts/FilterNames.h"
#include "engine/analysis/Advice.h"
#include "engine/analysis/Thresholds.h"

#include <QCoreApplication>

#include <algorithm>

namespace Analysis {

void settleConflict(const AdviceInput &input, Advice &noise, Advice &sharpen) {
    using Autopilot::Level;
    const Findings &found = input.findings;
    if (!noise.enabled || !sharpen.enabled || input.image.isRaw || found.noiseLevel > Level::Medium ||
        found.blurLevel > Level::Medium)
        return;
    const QString &preferred = input.preferences.conflictResolutionPref;
    const bool noisePrevails = found.noise / Thresholds::NoiseMedium >= found.blur / Thresholds::BlurMedium;
    const bool keepNoise =
        preferred == QStringLiteral("denoise") || (preferred != QStringLiteral("sharpen") && noisePrevails);
    Advice &loser = keepNoise ? sharpen : noise;
    loser.enabled = false;
    loser.reason = keepNoise ? QStringLiteral("Removing the little noise comes first")
                             : QStringLiteral("Sharpening comes before the little noise");
}

void leaveToUpscaling(const AdviceInput &input, const Advice &size, Advice &noise, Advice &sharpen) {
    using Autopilot::Level;
    if (!size.enabled || size.parameters.value(Params::Scale).toDouble() <= 1)
        return;
    const auto leave = [](Advice &advice, const QString &reason) {
        if (!advice.enabled)
            return;
        advice.enabled = false;
        advice.parameters.insert(Params::DeselectedByUpscaling, true);
        advice.reason = reason;
    };
    if (input.findings.noiseLevel <= Level::Medium && !input.image.isRaw)
        leave(noise, QStringLiteral("Upscaling removes this much noise itself"));
    if (input.findings.blurLevel <= Level::Medium && input.findings.kind != BlurKind::Motion &&
        input.findings.kind != BlurKind::Defocus)
        leave(sharpen, QStringLiteral("Upscaling sharpens this much blur itself"));
}

} // namespace Analysis

namespace {

using namespace Analysis;

QVariantMap entryOf(const Advice &advice) {
    QVariantMap entry = advice.parameters;
    entry.insert(Keys::Enabled, advice.enabled);
    entry.insert(Keys::Model, advice.model);
    return entry;
}

QVariantMap problemsOf(const Findings &findings, bool facesSought) {
    return {{Keys::NoiseLevel, int(findings.noiseLevel)},
            {Keys::BlurLevel, int(findings.blurLevel)},
            {QStringLiteral("ap_params"), QVariantMap{{QStringLiteral("noise"), shownNoise(findings.noise)},
                                                      {QStringLiteral("blur"), shownBlur(findings.blur)}}},
            {QStringLiteral("autoFaces"), QVariantList()},
            {QStringLiteral("subjectFaces"), QVariantList()},
            {QStringLiteral("faceLandmarks"), QVariantList()},
            {QStringLiteral("faceCount"), facesSought ? 0 : -1},
            {QStringLiteral("existSalient"), false},
            {QStringLiteral("salientRatio"), 0.0}};
}

} // namespace

AutopilotAnswer analyseImage(const EngineInput &input, const ImageStatistics &statistics,
                             const ModelCatalogue &models, const AutopilotOptions &options,
                             const RunControl &control) {
    AutopilotAnswer answer;
    if (control.stopped()) {
        answer.cancelled = true;
        return answer;
    }
    if (statistics.width <= 0 || statistics.height <= 0) {
        answer.error = QCoreApplication::translate("Engine", "There is no picture to analyse");
        return answer;
    }
    control.report(0.8, QStringLiteral("final"));
    const AdviceInput advised = {input, statistics, models, options.preferences, findingsOf(statistics)};
    Advice noise = adviseNoise(advised);
    Advice sharpen = adviseSharpen(advised);
    settleConflict(advised, noise, sharpen);
    leaveToUpscaling(advised, adviseSize(advised, false, false), noise, sharpen);
    leaveToDenoising(advised, noise, sharpen);
    const Advice size = adviseSize(advised, noise.enabled, sharpen.enabled);

    QVariantMap reasons;
    for (const Advice &advice : {noise, sharpen, size, adviseExposure(advised), adviseColour(advised)}) {
        answer.settings.insert(advice.category, entryOf(advice));
        reasons.insert(advice.category, QVariantMap{{QStringLiteral("measured"), advice.measured},
                                                    {QStringLiteral("threshold"), advice.threshold},
                                                    {QStringLiteral("text"), advice.reason}});
    }
    const bool facesSought =
        options.forceFaceDetect || options.preferences.faceDetection != QStringLiteral("none");
    answer.problems = problemsOf(advised.findings, facesSought);
    answer.problems.insert(QStringLiteral("reasons"), reasons);
    control.report(1, QStringLiteral("done"));
    return answer;
}
