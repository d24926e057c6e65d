#include "engine/analysis/Drawings.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Analysis {

namespace {

constexpr float StrongStep = 30.0f / 255; ///< of the luma from one pixel to the next
constexpr int Reach = 6;                  ///< pixels that count as beside an edge
constexpr float BurntOut = 0.5f;

struct Counts {
    std::size_t beside = 0, flat = 0, extreme = 0;
};

bool isStep(const Plane &luma, int x, int y) {
    const float here = luma.at(x, y);
    return (x + 1 < luma.width && std::abs(luma.at(x + 1, y) - here) >= StrongStep) ||
           (y + 1 < luma.height && std::abs(luma.at(x, y + 1) - here) >= StrongStep);
}

/// 1 for the pixels within reach of a strong step.
std::vector<char> besideSteps(const Plane &luma) {
    const int width = luma.width, height = luma.height;
    std::vector<char> across(luma.values.size()), marks(luma.values.size());
    const auto row = [width](std::vector<char> &from, int y) {
        return from.data() + std::ptrdiff_t(y) * width;
    };
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (isStep(luma, x, y))
                std::fill(row(across, y) + std::max(0, x - Reach),
                          row(across, y) + std::min(width, x + Reach + 1), char(1));
    for (int y = 0; y < height; ++y)
        for (int v = std::max(0, y - Reach); v <= std::min(height - 1, y + Reach); ++v)
            std::transform(row(across, v), row(across, v) + width, row(marks, y), row(marks, y),
                           [](char a, char b) { return char(a | b); });
    return marks;
}

bool isFlat(const Plane &plane, int x, int y) {
    const float here = plane.at(x, y);
    for (int v = y - 1; v <= y + 1; ++v)
        for (int u = x - 1; u <= x + 1; ++u)
            if (plane.at(u, v) != here)
                return false;
    return true;
}

void count(const Crop &tile, Counts &counts) {
    const std::vector<char> beside = besideSteps(tile.luma);
    for (int y = 1; y + 1 < tile.luma.height; ++y) {
        for (int x = 1; x + 1 < tile.luma.width; ++x) {
            if (!beside[std::size_t(y) * std::size_t(tile.luma.width) + std::size_t(x)])
                continue;
            ++counts.beside;
            if (!std::all_of(tile.rgb.begin(), tile.rgb.end(),
                             [x, y](const Plane &plane) { return isFlat(plane, x, y); }))
                continue;
            const auto [least, most] =
                std::minmax({tile.rgb[0].at(x, y), tile.rgb[1].at(x, y), tile.rgb[2].at(x, y)});
            ++(most <= 0 || least >= 1 ? counts.extreme : counts.flat);
        }
    }
}

} // namespace

float measureDrawing(const std::vector<Crop> &tiles, std::stop_token stop) {
    Counts counts;
    for (const Crop &tile : tiles) {
        if (stop.stop_requested())
            return 0;
        count(tile, counts);
    }
    if (counts.beside == 0)
        return 0;
    const float all = float(counts.beside);
    return float(counts.flat) / all + std::max(0.0f, float(counts.extreme) / all - BurntOut);
}

} // namespace Analysis
