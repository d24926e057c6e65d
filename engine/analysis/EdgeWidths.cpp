#include "engine/analysis/EdgeWidths.h"

#include "engine/analysis/Smoothing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Analysis {

namespace {

constexpr float WeakestEdge = 0.02f; ///< gradient per pixel that counts as an edge
constexpr float NoiseDistance = 4;   ///< deviations of the gradient's noise below which it may be noise
constexpr float DifferenceSpread = 1.0f / 3; ///< variance that the central difference adds to an edge
constexpr float Extra = 1;                   ///< sigma of the further smoothing
constexpr double StrongestShare = 0.3;       ///< the edges that are measured
constexpr std::size_t FewestAtFullSize = 40;
constexpr std::size_t FewestAtAll = 8;
constexpr double WideEnough = 1.25;
constexpr double WideEnoughInNoise = 1;
constexpr float MuchNoise = 2.0f / 255;
/// Edges that change less than this are wider than can be told at their scale.
constexpr double LeastChange = 0.05;
/// Squares around zero are bent to stay above it, so that of two sharp pictures
/// the sharper one still measures less.
constexpr double Bend = 0.04;

struct Gradient {
    float x;
    float y;
    float squared() const { return x * x + y * y; }
};

Gradient gradientAt(const Plane &plane, int x, int y) {
    return {0.5f * (plane.at(x + 1, y) - plane.at(x - 1, y)),
            0.5f * (plane.at(x, y + 1) - plane.at(x, y - 1))};
}

/// The more noise, the more smoothing before looking; its variance is taken off
/// again.
float smoothingFor(float noise) {
    if (noise < 0.3f / 255)
        return 0;
    if (noise < 1.5f / 255)
        return 0.7f;
    if (noise < 8.0f / 255)
        return 1;
    return noise < 20.0f / 255 ? 1.5f : 2;
}

/// Mean square of the gradient of white noise after Gaussian smoothing, both
/// parts together.
float gradientNoise(float noise, float sigma) {
    const float square = sigma * sigma;
    return noise * noise * (sigma > 0 ? 1 / (4 * std::numbers::pi_v<float> * square * square) : 1);
}

} // namespace

std::vector<Edge> edgesOf(const Plane &plane, float noise) {
    const float before = smoothingFor(noise);
    const float after = std::sqrt(before * before + Extra * Extra);
    const Plane sharper = smoothed(plane, before);
    const Plane softer = smoothed(plane, after);
    const float sharperNoise = gradientNoise(noise, before);
    const float softerNoise = gradientNoise(noise, after);
    const float weakest = std::max(WeakestEdge / (1 + after), NoiseDistance * std::sqrt(softerNoise / 2));
    const int margin = 4 + int(3 * before);
    std::vector<Edge> edges;
    for (int y = margin; y < softer.height - margin; ++y) {
        for (int x = margin; x < softer.width - margin; ++x) {
            const Gradient g = gradientAt(softer, x, y);
            const float size = g.squared();
            if (size < weakest * weakest)
                continue;
            const bool steep = std::abs(g.y) > 2.414f * std::abs(g.x);
            const bool level = std::abs(g.x) > 2.414f * std::abs(g.y);
            const int dx = steep ? 0 : 1;
            const int dy = level ? 0 : steep ? 1 : g.x * g.y > 0 ? 1 : -1;
            if (gradientAt(softer, x + dx, y + dy).squared() > size ||
                gradientAt(softer, x - dx, y - dy).squared() >= size)
                continue;
            edges.push_back({size - softerNoise, gradientAt(sharper, x, y).squared() - sharperNoise});
        }
    }
    return edges;
}

std::size_t fewestEdges(std::size_t scale) {
    return std::max(FewestAtAll, FewestAtFullSize >> scale);
}

double widthOf(std::vector<Edge> edges, std::size_t fewest, float noise) {
    const std::size_t wanted = std::max(fewest, std::size_t(StrongestShare * double(edges.size())));
    const std::size_t count = std::min(wanted, edges.size());
    std::nth_element(edges.begin(), edges.begin() + std::ptrdiff_t(count - 1), edges.end(),
                     [](const Edge &a, const Edge &b) { return a.strength > b.strength; });
    double before = 0;
    double after = 0;
    for (std::size_t i = 0; i < count; ++i) {
        before += double(edges[i].before);
        after += double(edges[i].strength);
    }
    const double wide = double(Extra * Extra) / std::max(before / after - 1, LeastChange);
    const double smoothing = double(smoothingFor(noise));
    const double square = wide - smoothing * smoothing - double(DifferenceSpread);
    return std::sqrt((square + std::sqrt(square * square + Bend)) / 2);
}

bool isWideEnough(double width, float noise) {
    return width >= (noise < MuchNoise ? WideEnough : WideEnoughInNoise);
}

} // namespace Analysis
