#include "engine/analysis/ClippedNoise.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Analysis {

namespace {

double density(double z) {
    return std::exp(-0.5 * z * z) / std::sqrt(2 * std::numbers::pi);
}

double below(double z) {
    return 0.5 * std::erfc(-z / std::numbers::sqrt2);
}

struct Moments {
    double mean = 0;
    double deviation = 0;
};

Moments clipped(double level, double sigma) {
    const double a = -level / sigma;
    const double b = (1 - level) / sigma;
    const double inside = below(b) - below(a);
    const double above = 1 - below(b);
    const double first = level * inside + sigma * (density(a) - density(b)) + above;
    const double second = (level * level + sigma * sigma) * inside +
                          2 * level * sigma * (density(a) - density(b)) +
                          sigma * sigma * (a * density(a) - b * density(b)) + above;
    return {first, std::sqrt(std::max(0.0, second - first * first))};
}

} // namespace

float unclippedDeviation(float mean, float deviation) {
    const double room = std::min<double>(mean, 1 - mean);
    if (deviation <= 0 || room > 4 * double(deviation))
        return deviation;
    // Fixed point: each turn moves level and sigma by what clipping took from them.
    double level = std::clamp<double>(mean, 0, 1);
    double sigma = deviation;
    for (int turn = 0; turn < 60; ++turn) {
        const Moments now = clipped(level, sigma);
        level = std::clamp(level + (mean - now.mean), 0.0, 1.0);
        sigma = std::min(1.0, sigma * std::clamp(deviation / std::max(now.deviation, 1e-9), 0.5, 2.0));
    }
    return float(sigma);
}

} // namespace Analysis
