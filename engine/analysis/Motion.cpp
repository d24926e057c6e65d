#include "engine/analysis/Motion.h"

#include "engine/analysis/Smoothing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Analysis {

namespace {

constexpr float FineSmoothing = 0.7f;
constexpr float CoarseSmoothing = 2;
constexpr double MostNoise =
    0.15; ///< share of the noise in a tile's fine detail beyond which it tells nothing
constexpr float LeastRatio = 3.3f;
constexpr float LargestRatio = 60;
constexpr float TileRatio = 2;
constexpr double Apart = 0.35; ///< radians
constexpr double AgreeingShare = 0.85;
/// A tile with edges in one direction only can't tell; 0.25 would be equally many in all.
constexpr double LeastCrossing = 0.03;
constexpr std::size_t FewestVotes = 3;
constexpr float LengthPerRatio = 1.7f; ///< from pictures smeared by 5 to 20 pixels

/// Sums of products of the gradient's parts.
struct Tensor {
    double xx = 0;
    double xy = 0;
    double yy = 0;

    double trace() const { return xx + yy; }
    double determinant() const { return xx * yy - xy * xy; }
    void add(const Tensor &other, double weight) {
        xx += other.xx * weight;
        xy += other.xy * weight;
        yy += other.yy * weight;
    }
};

Tensor tensorOf(const Plane &plane) {
    Tensor sum;
    for (int y = 1; y + 1 < plane.height; ++y) {
        for (int x = 1; x + 1 < plane.width; ++x) {
            const double gx = 0.5 * (plane.at(x + 1, y) - plane.at(x - 1, y));
            const double gy = 0.5 * (plane.at(x, y + 1) - plane.at(x, y - 1));
            sum.xx += gx * gx;
            sum.xy += gx * gy;
            sum.yy += gy * gy;
        }
    }
    const double count = std::max(1, plane.width - 2) * double(std::max(1, plane.height - 2));
    return {sum.xx / count, sum.xy / count, sum.yy / count};
}

Plane difference(Plane a, const Plane &b) {
    for (std::size_t i = 0; i < a.values.size(); ++i)
        a.values[i] -= b.values[i];
    return a;
}

struct Pair {
    Tensor fine;
    Tensor coarse;
};

/// Ratio of the most to the least fine detail relative to coarse, over the directions, and the
/// direction of the least: generalised eigenvalues of the two, here those of inverse(coarse) * fine.
MotionFound compare(const Pair &pair) {
    const auto &[fine, coarse] = pair;
    MotionFound found;
    const double determinant = coarse.determinant();
    if (determinant <= 1e-6 * coarse.trace() * coarse.trace() || fine.trace() <= 0)
        return found;
    const double a = (coarse.yy * fine.xx - coarse.xy * fine.xy) / determinant;
    const double b = (coarse.yy * fine.xy - coarse.xy * fine.yy) / determinant;
    const double c = (coarse.xx * fine.xy - coarse.xy * fine.xx) / determinant;
    const double d = (coarse.xx * fine.yy - coarse.xy * fine.xy) / determinant;
    const double half = (a + d) / 2;
    const double root = std::sqrt(std::max(0.0, half * half - (a * d - b * c)));
    const double least = half - root;
    found.ratio = float((half + root) / std::max(least, half / LargestRatio));
    // Either row of the singular matrix gives the vector; take the one that is not nought.
    const bool first = std::hypot(b, least - a) >= std::hypot(c, least - d);
    const double x = first ? b : least - d;
    const double y = first ? least - a : c;
    double angle = std::atan2(-y, x);
    if (angle < 0)
        angle += std::numbers::pi;
    found.angle = std::min(float(angle), 3.1415925f);
    return found;
}

} // namespace

MotionFound findMotion(const std::vector<Plane> &tiles, float noise, std::stop_token stop) {
    const double s = FineSmoothing;
    const double noiseShare = double(noise) * noise / (8 * std::numbers::pi * s * s * s * s);
    Tensor fine;
    Tensor coarse;
    std::vector<Pair> pairs;
    for (const Plane &tile : tiles) {
        if (stop.stop_requested())
            return {};
        Pair pair;
        pair.coarse = tensorOf(halved(halved(halved(tile))));
        if (pair.coarse.determinant() <= LeastCrossing * pair.coarse.trace() * pair.coarse.trace())
            continue;
        pair.fine = tensorOf(difference(smoothed(tile, FineSmoothing), smoothed(tile, CoarseSmoothing)));
        if (2 * noiseShare > MostNoise * pair.fine.trace())
            continue;
        pair.fine.xx = std::max(0.0, pair.fine.xx - noiseShare);
        pair.fine.yy = std::max(0.0, pair.fine.yy - noiseShare);
        if (pair.fine.trace() <= 0)
            continue;
        // Each tile counts alike, however much texture it has.
        fine.add(pair.fine, 1 / pair.fine.trace());
        coarse.add(pair.coarse, 1 / pair.coarse.trace());
        pairs.push_back(pair);
    }
    MotionFound found = compare({fine, coarse});
    std::size_t agreeing = 0;
    for (const Pair &pair : pairs) {
        const MotionFound own = compare(pair);
        const double turn = std::abs(own.angle - found.angle);
        agreeing += own.ratio > TileRatio && std::min(turn, std::numbers::pi - turn) < Apart ? 1 : 0;
    }
    // A moving camera smears every part alike; grass or a horizon has its own direction in some.
    if (found.ratio > LeastRatio && pairs.size() >= FewestVotes &&
        double(agreeing) > AgreeingShare * double(pairs.size()))
        found.length = LengthPerRatio * found.ratio;
    return found;
}

} // namespace Analysis
