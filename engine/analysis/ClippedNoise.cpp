#include "engine/analysis/ClippedNoise.h"

#include <algorithm>
#include <array>
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

/// Of noise with deviation 1 about a level, cut off at 0.
struct Moments {
    double mean = 0;
    double variance = 1;
};

Moments cutOff(double level) {
    const double inside = below(level);
    const double mean = level * inside + density(level);
    const double square = (level * level + 1) * inside + level * density(level);
    return {mean, square - mean * mean};
}

constexpr std::size_t Steps = 100;
constexpr double Farthest = 5; ///< deviations from the limit at which nothing is lost

std::array<Moments, Steps + 1> makeTable() {
    std::array<Moments, Steps + 1> table;
    for (std::size_t i = 0; i <= Steps; ++i)
        table[i] = cutOff(double(i) * Farthest / double(Steps));
    return table;
}

} // namespace

float keptShare(float mean, float sigma) {
    static const std::array<Moments, Steps + 1> table = makeTable();
    const double room = double(std::min(mean, 1 - mean));
    if (room >= Farthest * double(sigma))
        return 1;
    // Noise so strong that both limits cut it counts as cut by the nearer one.
    const double seen = room / double(sigma);
    const auto above = std::lower_bound(table.begin(), table.end(), seen,
                                        [](const Moments &m, double value) { return m.mean < value; });
    if (above == table.begin())
        return float(above->variance);
    if (above == table.end())
        return 1;
    const Moments &a = *std::prev(above);
    const Moments &b = *above;
    return float(a.variance + (seen - a.mean) / (b.mean - a.mean) * (b.variance - a.variance));
}

} // namespace Analysis
