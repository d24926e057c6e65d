#include "engine/analysis/Noise.h"

#include "engine/analysis/ChromaBlotches.h"
#include "engine/analysis/ClippedNoise.h"
#include "engine/analysis/NoiseVariance.h"

#include <algorithm>
#include <cmath>

namespace Analysis {

namespace {

/// Blocks nearer to black or white than this many deviations lose much of their noise to clipping.
constexpr float SafeDistance = 1.5f;
constexpr std::size_t FewestSafe = 200;
/// A block whose mean is this near to black or white holds no signal that noise could show on.
constexpr float Saturated = 0.004f;
/// How much was cut off depends on the noise that is looked for; it settles in a few turns.
constexpr int Turns = 4;
constexpr float Settled = 0.01f;
/// Difference of the mean squared frequencies of the two bands, for Gaussian correlation.
constexpr float GrainScale = 4.4f;
/// Deviation that rounding to 8 bits leaves in the luma.
constexpr float Rounding = 0.2f / 255;

/// The blocks whose means lie this far from black and white in all of the channels.
Indices within(const Blocks &blocks, std::initializer_list<std::size_t> channels, float margin) {
    Indices chosen;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const auto inside = [&](std::size_t c) {
            return blocks[i].mean[c] >= margin && blocks[i].mean[c] <= 1 - margin;
        };
        if (std::all_of(channels.begin(), channels.end(), inside))
            chosen.push_back(i);
    }
    return chosen;
}

/// The noise before values were cut off at black and white. Each block gets back what was cut off
/// there, or blocks at the limits would be taken for the flattest. Leaves `corrected` that way.
float channelVariance(const Blocks &blocks, std::size_t channel, Blocks &corrected, std::stop_token stop) {
    const Indices usable = within(blocks, {channel}, Saturated);
    if (usable.empty())
        return 0;
    float variance = averageVariance(corrected, usable, channel);
    for (int turn = 1; turn < Turns && variance > 0 && !stop.stop_requested(); ++turn) {
        const float sigma = std::sqrt(variance);
        for (const std::size_t i : usable) {
            const float kept = keptShare(blocks[i].mean[channel], sigma);
            for (std::size_t b = 0; b < blocks[i].band[channel].size(); ++b)
                corrected[i].band[channel][b] = blocks[i].band[channel][b] / kept;
        }
        const float before = variance;
        variance = averageVariance(corrected, usable, channel);
        if (std::abs(variance - before) < Settled * before)
            break;
    }
    return variance;
}

} // namespace

NoiseLevels measureNoise(const std::vector<Crop> &tiles, std::stop_token stop) {
    Blocks blocks;
    for (const Crop &tile : tiles) {
        if (stop.stop_requested())
            return {};
        appendSpectra(tile, blocks);
    }
    std::array<float, 3> variance = {};
    NoiseLevels levels;
    Blocks corrected = blocks;
    for (std::size_t c = 0; c < 3; ++c) {
        if (stop.stop_requested())
            return {};
        variance[c] = channelVariance(blocks, c, corrected, stop);
        levels.rgb[c] = std::sqrt(variance[c]);
    }

    // How the noise of the channels hangs together and how it is correlated is seen where none of
    // them is clipped; how strong it is, is known from the channels.
    const float widest = SafeDistance * *std::max_element(levels.rgb.begin(), levels.rgb.end());
    Indices safe = within(blocks, {0, 1, 2}, std::max(Saturated, widest));
    if (safe.size() < FewestSafe)
        safe = within(blocks, {3}, Saturated);
    if (safe.empty() || stop.stop_requested())
        return levels;
    float here = 0;
    float everywhere = 0;
    for (std::size_t c = 0; c < 3; ++c) {
        here += LumaWeights[c] * variancesIn(blocks, safe, c).total();
        everywhere += LumaWeights[c] * variance[c];
    }
    const float scale = here > 0 ? std::clamp(everywhere / here, 0.25f, 4.0f) : 1;
    const Variances luma = variancesIn(blocks, safe, 3);
    levels.luma = std::sqrt(luma.total() * scale);
    levels.chroma =
        std::sqrt((variancesIn(blocks, safe, 4).total() + variancesIn(blocks, safe, 5).total()) / 2 * scale);
    levels.blotches = measureBlotches(tiles, levels.chroma, stop);
    const float floor = Rounding * Rounding;
    if (luma.middle > WhiteRatio * std::max(luma.high, floor))
        levels.grainSize = std::sqrt(std::log(luma.middle / std::max(luma.high, floor)) / GrainScale);
    return levels;
}

} // namespace Analysis
