#pragma once

#include "contracts/Autopilot.h"
#include "contracts/ProcessingBackend.h"
#include "engine/analysis/ImageStatistics.h"
#include "engine/catalogue/ModelCatalogue.h"
#include "engine/catalogue/Roles.h"

#include <functional>
#include <optional>

namespace Analysis {

/// What was measured, in the units of the thresholds, and the levels it amounts to.
struct Findings {
    double noise = 0; ///< white noise that is as bad, 8-bit scale
    double blur = 0;  ///< Gaussian sigma in pixels, or that of the kernel that was found
    BlurKind kind = BlurKind::Unknown;
    Autopilot::Level noiseLevel = Autopilot::Level::None;
    Autopilot::Level blurLevel = Autopilot::Level::None;
};

Findings findingsOf(const ImageStatistics &statistics);

/// The findings on the scale on which the status view names them.
double shownNoise(double noise);
double shownBlur(double blur);

/// "low" to "severe"; no level has no name.
QString nameOf(Autopilot::Level level);

/// The preferences count strengths from 0, very weak, over 3, normal, to 4, strong.
double strengthFactor(int strength);

/// Where the sliders of strengths begin.
inline constexpr double SmallestStrength = 0.01;

/// One category's recommendation.
struct Advice {
    QString category;
    bool enabled = false;
    QString model;
    QVariantMap parameters;
    double measured = 0;
    double threshold = 0;
    QString reason;
};

struct AdviceInput {
    const EngineInput &image;
    const ImageStatistics &statistics;
    const ModelCatalogue &models;
    const Autopilot::Preferences &preferences;
    Findings findings;
};

/// What a parameter of a model should be, by its role; nothing leaves it at its default.
using ValueOf = std::function<std::optional<double>(const ModelDefinition &, const ParameterDefinition &)>;

/// The same values for every model.
ValueOf byRole(const QMap<QString, double> &values);

/// Gives the parameters of every model of the category a value within their ranges, so that a model chosen
/// by hand starts well, too. Where models share a name, the recommended model's value counts.
void adviseParameters(const AdviceInput &input, const ValueOf &valueOf, Advice &advice);

/// The strength at which the model takes away what was measured, in the units of ModelDefinition::reach;
/// the smallest one where its definition doesn't say.
double strengthFor(const ModelDefinition *model, ModelDefinition::Fault fault, double measured,
                   const QStringList &flags = {});

/// "RAW" for camera files, otherwise "Denoise".
Advice adviseNoise(const AdviceInput &input);
Advice adviseSharpen(const AdviceInput &input);
/// `deblurred` and `denoised`: filters that run earlier take care of it already.
Advice adviseSize(const AdviceInput &input, bool denoised, bool deblurred);
Advice adviseExposure(const AdviceInput &input);
Advice adviseColour(const AdviceInput &input);

/// For pictures with little noise and little blur of which both would be treated: one treatment is
/// enough, and which one, the user may have said. Switches the other off.
void settleConflict(const AdviceInput &input, Advice &noise, Advice &sharpen);

/// Denoise runs first and leaves nothing that Sharpen would have to take away.
void leaveToDenoising(const AdviceInput &input, const Advice &noise, Advice &sharpen);

/// Upscaling treats moderate noise and blur itself: switches the filters off that would do so.
void leaveToUpscaling(const AdviceInput &input, const Advice &size, Advice &noise, Advice &sharpen);

} // namespace Analysis
