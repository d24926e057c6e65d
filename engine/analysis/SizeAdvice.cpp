#include "contracts/FilterNames.h"
#include "engine/analysis/Advice.h"
#include "engine/analysis/Thresholds.h"

#include <algorithm>
#include <cmath>

namespace Analysis {

namespace {

constexpr double MostDenoise = 25;  ///< noise that the upscaling models take away at full strength
constexpr double MostDeblur = 1.2;  ///< sigma of the blur that they take back
constexpr double NaturalBlur = 0.5; ///< what needs no deblurring
constexpr double StartScale = 2;    ///< of a filter that is off
constexpr double CentimetresPerInch = 2.54;
enum Unit { Pixels = 1, Inches = 2, Centimetres = 3 };

struct Size {
    bool wanted = false;
    QString mode = Params::Scale;
    double scale = StartScale;
    QString reason;
};

double smallPictureScale(double width, double height) {
    const double scale =
        std::min(Thresholds::MostUpscale, std::sqrt(Thresholds::UpscaledPixels / (width * height)));
    return std::floor(scale * 100) / 100;
}

/// Pixels per unit of the preferences.
double density(const AdviceInput &input) {
    const Autopilot::Preferences &preferences = input.preferences;
    if (preferences.resolution > 0)
        return double(preferences.resolution);
    const bool wantsCentimetres = preferences.resolutionUnit == Centimetres;
    const bool hasCentimetres = input.image.resolutionUnit == Centimetres;
    const double own = input.image.resolution > 0 ? input.image.resolution : 72;
    if (wantsCentimetres == hasCentimetres)
        return own;
    return wantsCentimetres ? own / CentimetresPerInch : own * CentimetresPerInch;
}

Size sideScale(const AdviceInput &input, bool isWidth, double side) {
    const Autopilot::Preferences &preferences = input.preferences;
    const double unit = preferences.resolutionUnit == Pixels ? 1 : density(input);
    Size size;
    size.mode = isWidth ? Params::Width : Params::Height;
    size.scale = std::max(1.0, double(preferences.upscalingFactor) * unit) / side;
    size.wanted = size.scale > 1 || preferences.enableDownscaling;
    size.reason = size.wanted ? QStringLiteral("The preferences ask for this size")
                              : QStringLiteral("The picture is larger than the size in the preferences");
    return size;
}

Size wantedSize(const AdviceInput &input) {
    const Autopilot::Preferences &preferences = input.preferences;
    const double width = input.statistics.width;
    const double height = input.statistics.height;
    const QString &type = preferences.upscalingType;
    Size size;
    if (!preferences.resizingSupported) {
        size.scale = 1;
        size.reason = QStringLiteral("The size of this picture may not change");
    } else if (type == QStringLiteral("auto")) {
        const double scale = smallPictureScale(width, height);
        size.wanted =
            scale >= Thresholds::LeastUpscale && std::min(width, height) >= Thresholds::SmallestSide;
        if (size.wanted)
            size.scale = scale;
        size.reason = size.wanted ? QStringLiteral("The picture is small")
                                  : QStringLiteral("The picture is large enough");
    } else if (type == QStringLiteral("scale")) {
        size.wanted = true;
        size.scale = double(preferences.upscalingFactor);
        size.reason = QStringLiteral("The preferences ask for this scale");
    } else if (type == QStringLiteral("width")) {
        size = sideScale(input, true, width);
    } else if (type == QStringLiteral("height")) {
        size = sideScale(input, false, height);
    } else if (type == QStringLiteral("longest")) {
        size = sideScale(input, width >= height, std::max(width, height));
    } else if (type == QStringLiteral("shortest")) {
        size = sideScale(input, width < height, std::min(width, height));
    } else {
        size.reason = QStringLiteral("The preferences leave the size alone");
    }
    if (!size.wanted && size.mode != Params::Scale) {
        size.mode = Params::Scale;
        size.scale = StartScale;
    }
    if (!(size.scale > 0))
        size.scale = 1;
    const double most = std::min(Thresholds::MaxScale, Thresholds::MaxSide / std::max(width, height));
    size.scale = std::clamp(size.scale, Thresholds::MinScale, std::max(Thresholds::MinScale, most));
    size.wanted = size.wanted && std::abs(size.scale - 1) > 0.005;
    return size;
}

QString modelFor(const AdviceInput &input) {
    if (input.preferences.upscalingModel != QStringLiteral("Auto"))
        return input.preferences.upscalingModel;
    const int quality = input.statistics.jpegQuality;
    if (quality < Thresholds::PoorQuality)
        return Models::LowResolution;
    if (input.statistics.drawing >= Thresholds::DrawingShare)
        return Models::Graphics;
    const bool clean = input.findings.noiseLevel == Autopilot::Level::None &&
                       input.findings.blurLevel == Autopilot::Level::None;
    return clean && quality >= Thresholds::FineQuality ? Models::HighFidelityV2 : Models::StandardV2;
}

} // namespace

Advice adviseSize(const AdviceInput &input, bool denoised, bool deblurred) {
    const Autopilot::Preferences &preferences = input.preferences;
    const Size size = wantedSize(input);
    const auto strength = [](double share, int preference) {
        return std::clamp(share * strengthFactor(preference), SmallestStrength, 1.0);
    };
    const double noise = denoised ? 0 : input.findings.noise / MostDenoise;
    const double blur = deblurred ? 0 : (input.findings.blur - NaturalBlur) / MostDeblur;
    const double quality = input.statistics.jpegQuality;

    Advice advice;
    advice.category = Categories::Enhance;
    advice.enabled = size.wanted;
    advice.model = modelFor(input);
    const bool ownResolution = preferences.resolution > 0;
    // Who thinks in pixels is shown pixels, whatever the file's density is counted in.
    const bool ownUnit = ownResolution || preferences.resolutionUnit == Pixels;
    advice.parameters = {
        {Params::Mode, size.mode},
        {Params::Scale, size.scale},
        {Params::Width, std::max(1, int(std::lround(input.statistics.width * size.scale)))},
        {Params::Height, std::max(1, int(std::lround(input.statistics.height * size.scale)))},
        {Params::Resolution, ownResolution ? double(preferences.resolution) : input.image.resolution},
        {Params::ResolutionUnit, ownUnit ? preferences.resolutionUnit : input.image.resolutionUnit}};
    adviseParameters(input,
                     byRole({{Roles::Denoise, strength(noise, preferences.upscalingParam1Strength)},
                             {Roles::Deblur, strength(blur, preferences.upscalingParam2Strength)},
                             {Roles::Compression, (100 - quality) / 100}}),
                     advice);
    advice.measured = double(input.statistics.width) * input.statistics.height;
    advice.threshold = Thresholds::UpscaledPixels / (Thresholds::LeastUpscale * Thresholds::LeastUpscale);
    advice.reason = size.reason;
    return advice;
}

} // namespace Analysis
