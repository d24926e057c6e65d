#include "engine/analysis/Motion.h"

#include "engine/analysis/Smoothing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Analysis {

namespace {

constexpr float FineSmoothing = 0.7f;
constexpr float CoarseSmoothing = 2;
/// Share of the noise in a tile's fine detail beyond which it tells nothing.
constexpr double MostNoise = 0.15;
/// A tile with edges in one direction only can't tell; 0.25 would be equally many in all.
constexpr double LeastCrossing = 0.03;
/// How much less fine detail there is in the direction; most photographs have 1 to 1.6 without a smear.
constexpr double LeastRatio = 1.6;
constexpr double LargestRatio = 60;
/// Edges across a smear are at least this wide, and wider by this factor than those along it: of the
/// photographs that were tried without a smear, nine tenths stayed below 1.4 and none came this far.
constexpr double LeastWidth = 1.3;
constexpr double LeastWidthRatio = 1.6;
constexpr double SharpestAlong = 0.3; ///< taken for those along it when they are sharper than that
constexpr double Towards = 0.3;       ///< radians from the direction that still count
constexpr std::size_t FewestEdges = 40;

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

struct Direction {
    double ratio = 1; ///< how much less fine detail there is in it than across, 1 and more
    double angle = 0;
};

/// Generalised eigenvalues of the two tensors, here those of inverse(coarse) *
/// fine.
Direction compare(const Tensor &fine, const Tensor &coarse) {
    Direction found;
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
    found.ratio = (half + root) / std::max(least, half / LargestRatio);
    // Either row of the singular matrix gives the vector; take the one that is
    // not nought.
    const bool first = std::hypot(b, least - a) >= std::hypot(c, least - d);
    const double x = first ? b : least - d;
    const double y = first ? least - a : c;
    found.angle = std::atan2(-y, x);
    if (found.angle < 0)
        found.angle += std::numbers::pi;
    return found;
}

Direction blurredDirection(const std::vector<Plane> &tiles, float noise, std::stop_token stop) {
    const double s = FineSmoothing;
    const double noiseShare = double(noise) * noise / (8 * std::numbers::pi * s * s * s * s);
    Tensor allFine;
    Tensor allCoarse;
    for (const Plane &tile : tiles) {
        if (stop.stop_requested())
            return {};
        const Tensor coarse = tensorOf(halved(halved(halved(tile))));
        if (coarse.determinant() <= LeastCrossing * coarse.trace() * coarse.trace())
            continue;
        Tensor fine = tensorOf(difference(smoothed(tile, FineSmoothing), smoothed(tile, CoarseSmoothing)));
        if (fine.trace() <= 0 || 2 * noiseShare > MostNoise * fine.trace())
            continue;
        fine.xx = std::max(0.0, fine.xx - noiseShare);
        fine.yy = std::max(0.0, fine.yy - noiseShare);
        // Each tile counts alike, however much texture it has.
        allFine.add(fine, 1 / fine.trace());
        allCoarse.add(coarse, 1 / coarse.trace());
    }
    return compare(allFine, allCoarse);
}

/// Width of the edges whose gradients point in this direction, over all tiles;
/// 0 where there are too few. As the width of all edges is: from the smallest
/// copy up to the first on which they are wide.
double widthTowards(double angle, const TileEdges &edges, float noise) {
    double width = 0;
    for (std::size_t k = EdgeScales; k-- > 0;) {
        std::vector<Edge> chosen;
        for (const std::vector<Edge> &tile : edges[k]) {
            for (const Edge &edge : tile) {
                const double turn = std::abs(double(edge.angle) - angle);
                if (std::min(turn, std::abs(std::numbers::pi - turn)) < Towards)
                    chosen.push_back(edge);
            }
        }
        if (chosen.size() < FewestEdges)
            continue;
        const float left = noise / float(1 << k);
        const double here = widthOf(std::move(chosen), FewestEdges, left);
        width = here * (1 << k);
        if (isWideEnough(here, left))
            break;
    }
    return width;
}

} // namespace

MotionFound findMotion(const std::vector<Plane> &tiles, const TileEdges &edges, float noise,
                       std::stop_token stop) {
    const Direction direction = blurredDirection(tiles, noise, stop);
    if (direction.ratio < LeastRatio)
        return {};
    const double turned = direction.angle + std::numbers::pi / 2;
    const double across = widthTowards(direction.angle, edges, noise);
    const double along = widthTowards(std::fmod(turned, std::numbers::pi), edges, noise);
    if (along <= 0 || across < LeastWidth || across < LeastWidthRatio * std::max(along, SharpestAlong))
        return {};
    // A box as wide as that in its own direction, beyond what the picture has in
    // the other.
    return {float(std::sqrt(12 * (across * across - along * along))),
            std::min(float(direction.angle), 3.1415925f)};
}

} // namespace Analysis
