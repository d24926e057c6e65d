#include "engine/analysis/Blur.h"

#include "engine/analysis/Motion.h"
#include "engine/analysis/Smoothing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Analysis {

namespace {

constexpr float WeakestEdge = 0.02f; ///< gradient per pixel that counts as an edge
constexpr float NoiseDistance = 4;   ///< deviations of the gradient's noise below which it may be noise
constexpr float DifferenceSpread = 1.0f / 3; ///< variance that the central difference adds to an edge
constexpr float Widest = 2.5f;               ///< wider edges are measured on a smaller copy
constexpr int Scales = 4;
constexpr std::size_t FewestInTile = 40;
constexpr double EdgeQuantile = 0.4;   ///< within a tile; thin lines look sharper than they are
constexpr double TileQuantile = 0.2;   ///< among tiles: the sharpest part of the picture
constexpr double StrongestShare = 0.3; ///< the edges of a tile that are measured

struct Edge {
    float strength; ///< squared gradient
    float variance; ///< sigma squared
};

float quantile(std::vector<float> values, double share) {
    const auto at = values.begin() + std::ptrdiff_t(share * double(values.size() - 1));
    std::nth_element(values.begin(), at, values.end());
    return *at;
}

struct Gradient {
    float x;
    float y;
    float squared() const { return x * x + y * y; }
};

Gradient gradientAt(const Plane &plane, int x, int y) {
    return {0.5f * (plane.at(x + 1, y) - plane.at(x - 1, y)),
            0.5f * (plane.at(x, y + 1) - plane.at(x, y - 1))};
}

std::vector<Edge> edgesOf(const Plane &luma, float noise) {
    constexpr float Extra = 1;
    // The more noise, the more smoothing before looking; its variance is taken off again.
    const float before = noise < 1.5f / 255    ? 0.0f
                         : noise < 8.0f / 255  ? 1.0f
                         : noise < 20.0f / 255 ? 1.5f
                                               : 2.0f;
    const Plane plane = smoothed(luma, before);
    const Plane softer = smoothed(luma, std::sqrt(before * before + Extra * Extra));
    // Noise of the gradient of white noise after Gaussian smoothing.
    const float left = before > 0 ? noise / (2 * std::sqrt(2 * std::numbers::pi_v<float>) * before * before)
                                  : noise * std::numbers::sqrt2_v<float> / 2;
    const float weakest = std::max(WeakestEdge / (1 + before), NoiseDistance * left);
    const int margin = 4 + int(3 * before);
    std::vector<Edge> edges;
    for (int y = margin; y < plane.height - margin; ++y) {
        for (int x = margin; x < plane.width - margin; ++x) {
            const Gradient g = gradientAt(plane, x, y);
            const float size = g.squared();
            if (size < weakest * weakest)
                continue;
            const bool steep = std::abs(g.y) > 2.414f * std::abs(g.x);
            const bool level = std::abs(g.x) > 2.414f * std::abs(g.y);
            const int dx = steep ? 0 : 1;
            const int dy = level ? 0 : steep ? 1 : g.x * g.y > 0 ? 1 : -1;
            if (gradientAt(plane, x + dx, y + dy).squared() > size ||
                gradientAt(plane, x - dx, y - dy).squared() >= size)
                continue;
            const float ratio = size / std::max(gradientAt(softer, x, y).squared(), 1e-12f);
            // An edge that hardly changes is wider than can be told here.
            const float wide = Extra / std::max(ratio - 1, 0.01f);
            const float variance = std::max(0.0f, wide - before * before - DifferenceSpread);
            edges.push_back({size, variance});
        }
    }
    return edges;
}

/// Of the strongest edges of a tile: weak ones are soft by nature or by compression.
float typicalVariance(std::vector<Edge> edges) {
    const std::size_t count = std::max(FewestInTile, std::size_t(StrongestShare * double(edges.size())));
    std::nth_element(edges.begin(), edges.begin() + std::ptrdiff_t(std::min(count, edges.size() - 1)),
                     edges.end(), [](const Edge &a, const Edge &b) { return a.strength > b.strength; });
    std::vector<float> variances;
    for (std::size_t i = 0; i < std::min(count, edges.size()); ++i)
        variances.push_back(edges[i].variance);
    return quantile(variances, EdgeQuantile);
}

} // namespace

BlurLevels measureBlur(const std::vector<Crop> &tiles, float noise, std::stop_token stop) {
    std::vector<Plane> planes;
    for (const Crop &tile : tiles)
        planes.push_back(tile.luma);
    BlurLevels levels;
    const MotionFound motion = findMotion(planes, noise, stop);
    levels.motion = motion.length > 0;
    levels.motionLength = motion.length;
    levels.motionAngle = motion.angle;
    float scale = 1;
    for (int turn = 0; turn < Scales; ++turn) {
        std::vector<float> perTile;
        std::size_t pixels = 0;
        std::size_t edgePixels = 0;
        for (Plane &plane : planes) {
            if (stop.stop_requested())
                return {};
            if (turn > 0)
                plane = halved(plane);
            pixels += plane.values.size();
            std::vector<Edge> edges = edgesOf(plane, noise);
            edgePixels += edges.size();
            if (edges.size() >= FewestInTile)
                perTile.push_back(std::sqrt(typicalVariance(std::move(edges))));
        }
        noise /= 2;
        if (!perTile.empty()) {
            levels.sigma = quantile(perTile, TileQuantile) * scale;
            levels.edgeShare = float(edgePixels) / float(pixels);
            if (levels.sigma < Widest * scale)
                break;
        }
        scale *= 2;
    }
    return levels;
}

} // namespace Analysis
