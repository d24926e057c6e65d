#include "engine/analysis/Advice.h"
#include "engine/analysis/Thresholds.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace Analysis {

namespace {

using Autopilot::Level;

/// The view gives what lies above a boundary the higher level, the findings what lies on it.
constexpr double Above = 1e-6;

Level levelOfNoise(double noise) {
    if (noise >= Thresholds::NoiseSevere)
        return Level::Severe;
    if (noise >= Thresholds::NoiseHigh)
        return Level::High;
    if (noise >= Thresholds::NoiseMedium)
        return Level::Medium;
    return noise >= Thresholds::NoiseLow ? Level::Low : Level::None;
}

Level levelOfBlur(double blur) {
    if (blur >= Thresholds::BlurHigh)
        return Level::High;
    if (blur >= Thresholds::BlurMedium)
        return Level::Medium;
    return blur >= Thresholds::BlurLow ? Level::Low : Level::None;
}

struct Knot {
    double from;
    double to;
};

template <std::size_t N>
double interpolate(const std::array<Knot, N> &knots, double value) {
    for (std::size_t i = 1; i < N; ++i) {
        if (value <= knots[i].from) {
            const Knot &a = knots[i - 1];
            const Knot &b = knots[i];
            return a.to + (value - a.from) / (b.from - a.from) * (b.to - a.to);
        }
    }
    return knots[N - 1].to;
}

/// Deviation of the luma of noise that is independent in the channels, as a share of theirs.
constexpr double LumaShare = 0.669;
/// Correlated noise puts its power where detail is, and is measured a tenth too low.
constexpr double GrainWeight = 0.5;
constexpr double MostForGrain = 1.5;

/// The white noise, independent in the channels, that is as bad and takes the same strength to remove.
double noiseOf(const ImageStatistics &statistics) {
    double sum = 0;
    for (const float channel : statistics.noise)
        sum += double(channel) * double(channel);
    const double white = std::max(std::sqrt(sum / 3), double(statistics.lumaNoise) / LumaShare);
    const double grain = statistics.grainSize;
    return 255 * white * std::min(MostForGrain, 1 + GrainWeight * grain * grain);
}

/// Where edges are wide because they are soft in the scene, fine detail isn't missing; where fine
/// texture makes edges look sharp, it is. The mean of both is nearer to what was done to a photograph
/// than either.
double blurOf(const ImageStatistics &statistics) {
    const double edges = statistics.blur;
    if (255 * double(statistics.lumaNoise) > Thresholds::NoiseOverDetail)
        return edges;
    return std::sqrt(edges * std::max(double(statistics.softness), Thresholds::LeastSoftness * edges));
}

} // namespace

Findings findingsOf(const ImageStatistics &statistics) {
    Findings findings;
    findings.noise = noiseOf(statistics);
    findings.noiseLevel = levelOfNoise(findings.noise);
    if (statistics.edgeShare < Thresholds::FewestEdges)
        return findings;
    findings.blur = blurOf(statistics);
    findings.kind = statistics.blurKind;
    // The deviation of a box, which is what a smear is in its own direction, and that of a disc.
    if (findings.kind == BlurKind::Motion && statistics.motionLength >= Thresholds::MotionLength)
        findings.blur = double(statistics.motionLength) / std::sqrt(12.0);
    else if (findings.kind == BlurKind::Motion)
        findings.kind = BlurKind::Unknown;
    else if (findings.kind == BlurKind::Defocus)
        findings.blur = double(statistics.defocusRadius) / 2;
    findings.blurLevel = levelOfBlur(findings.blur);
    return findings;
}

double shownNoise(double noise) {
    using namespace Thresholds;
    const double shown = interpolate<5>({{{0, 0},
                                          {NoiseMedium, ShownNoiseMedium},
                                          {NoiseHigh, ShownNoiseHigh},
                                          {NoiseSevere, ShownNoiseSevere},
                                          {100, 1 - Above}}},
                                        noise);
    return noise >= NoiseMedium ? shown + Above : shown;
}

double shownBlur(double blur) {
    using namespace Thresholds;
    const double shown = interpolate<4>(
        {{{0, 0}, {BlurMedium, ShownBlurMedium}, {BlurHigh, ShownBlurHigh}, {10, 1 - Above}}}, blur);
    return blur >= BlurMedium ? shown + Above : shown;
}

QString nameOf(Level level) {
    switch (level) {
    case Level::Low:
        return QStringLiteral("low");
    case Level::Medium:
        return QStringLiteral("medium");
    case Level::High:
        return QStringLiteral("high");
    case Level::Severe:
        return QStringLiteral("severe");
    case Level::Unknown:
    case Level::None:
        break;
    }
    return {};
}

double strengthFactor(int strength) {
    constexpr std::array<double, 5> Factors = {0.4, 0.6, 0.8, 1.0, 1.25};
    return Factors[std::size_t(std::clamp(strength, 0, int(Factors.size()) - 1))];
}

} // namespace Analysis
