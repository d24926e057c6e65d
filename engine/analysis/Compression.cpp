#include "engine/analysis/Compression.h"

#include "engine/analysis/BlockSpectrum.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace Analysis {

namespace {

/// A coefficient and its step in the luma table of the standard's annex K, which is quality 50.
struct Probe {
    std::size_t index;
    double step;
};
constexpr std::array<Probe, 8> Probes = {
    {{1, 11}, {8, 12}, {9, 12}, {2, 10}, {16, 14}, {10, 14}, {17, 13}, {3, 16}}};
constexpr int SmallestStep = 3; ///< finer steps drown in the rounding of the pixels
constexpr int LargestStep = 100;
constexpr std::size_t FewestCoefficients = 60;
constexpr double ClearlyPeriodic = 0.4;
constexpr double NearlyAsClear = 0.85;
constexpr std::size_t MostBlocks = 4000;

/// How far the coefficients gather at the multiples of a step, 1 being exactly; those around zero
/// gather there by themselves and don't count.
double periodicity(const std::vector<float> &coefficients, double step) {
    double sum = 0;
    std::size_t count = 0;
    for (const float c : coefficients) {
        if (std::abs(c) < 0.6 * step)
            continue;
        sum += std::cos(2 * std::numbers::pi * double(c) / step);
        ++count;
    }
    return count < FewestCoefficients ? 0 : sum / double(count);
}

/// The step that the coefficients keep to; 0 when they keep to none. They keep to its divisors as
/// well, and to a lesser degree to its multiples.
double stepOf(const std::vector<float> &coefficients) {
    std::array<double, LargestStep + 1> found = {};
    for (int step = SmallestStep; step <= LargestStep; ++step)
        found[std::size_t(step)] = periodicity(coefficients, step);
    const double most = *std::max_element(found.begin(), found.end());
    if (most < ClearlyPeriodic)
        return 0;
    int step = LargestStep;
    while (found[std::size_t(step)] < NearlyAsClear * most)
        --step;
    return step;
}

float blockinessOf(const std::vector<Crop> &tiles) {
    double border = 0;
    double inside = 0;
    std::size_t borders = 0;
    std::size_t others = 0;
    for (const Crop &tile : tiles) {
        for (int y = 0; y < tile.luma.height; ++y) {
            for (int x = 1; x < tile.luma.width; ++x) {
                const double step = std::abs(tile.luma.at(x, y) - tile.luma.at(x - 1, y));
                if ((tile.left + x) % 8 == 0) {
                    border += step;
                    ++borders;
                } else {
                    inside += step;
                    ++others;
                }
            }
        }
    }
    if (borders == 0 || others == 0)
        return 0;
    return float(std::max(0.0, border / double(borders) - inside / double(others)));
}

} // namespace

CompressionLevels measureCompression(const std::vector<Crop> &tiles, std::stop_token stop) {
    std::array<std::vector<float>, Probes.size()> coefficients;
    const std::size_t skip = std::max<std::size_t>(1, tiles.size() * 49 / MostBlocks);
    std::size_t turn = 0;
    for (const Crop &tile : tiles) {
        if (stop.stop_requested())
            return {};
        for (int y = (8 - tile.top % 8) % 8; y + 8 <= tile.luma.height; y += 8) {
            for (int x = (8 - tile.left % 8) % 8; x + 8 <= tile.luma.width; x += 8) {
                if (turn++ % skip != 0)
                    continue;
                std::array<float, 64> block;
                cosineTransform(tile.luma.row(y) + x, tile.luma.width, block);
                for (std::size_t i = 0; i < Probes.size(); ++i)
                    coefficients[i].push_back(255 * block[Probes[i].index]);
            }
        }
    }
    CompressionLevels levels;
    levels.blockiness = blockinessOf(tiles);
    std::vector<double> scales;
    for (std::size_t i = 0; i < Probes.size(); ++i) {
        const double step = stepOf(coefficients[i]);
        if (step > 0)
            scales.push_back(step / Probes[i].step);
        if (stop.stop_requested())
            return {};
    }
    if (scales.size() < Probes.size() / 2)
        return levels;
    const auto middle = scales.begin() + std::ptrdiff_t(scales.size() / 2);
    std::nth_element(scales.begin(), middle, scales.end());
    // The usual relation of quality and table: 50 / quality below 50, 2 - quality / 50 above.
    const double quality = *middle > 1 ? 50 / *middle : 100 - 50 * *middle;
    levels.quality = int(std::clamp(quality + 0.5, 1.0, 99.0));
    return levels;
}

} // namespace Analysis
