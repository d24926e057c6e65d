#include "engine/analysis/ChromaBlotches.h"

#include "engine/analysis/NoiseVariance.h"
#include "engine/analysis/Smoothing.h"

#include <cmath>
#include <numeric>

namespace Analysis {

namespace {

constexpr std::size_t FewestBlocks = 150;
/// A mean of four by four pixels leaves this share of white noise's variance.
constexpr float WhiteShare = 1.0f / 16;
/// Demosaicing and compression correlate fine noise, so that more of it is left.
constexpr float Correlated = 2.5f;
/// The middle frequencies of such means hold 1.4 to 2.9 times the variance of spots of 1.5 to 4 pixels; the
/// flattest blocks two thirds of that.
constexpr float Gathered = 1.4f;
/// Root mean square of white noise's three colour differences over that of R - luma and B - luma.
constexpr float OverThree = 0.868f;

} // namespace

float measureBlotches(const std::vector<Crop> &tiles, float chroma, std::stop_token stop) {
    Blocks blocks;
    for (const Crop &tile : tiles) {
        if (stop.stop_requested())
            return 0;
        appendSpectra(halved(halved(tile)), blocks);
    }
    if (blocks.size() < FewestBlocks)
        return 0;
    Indices all(blocks.size());
    std::iota(all.begin(), all.end(), std::size_t(0));
    const float coarse = (variancesIn(blocks, all, 4).middle + variancesIn(blocks, all, 5).middle) / 2;
    const float excess = coarse - Correlated * WhiteShare * chroma * chroma;
    return OverThree * std::sqrt(std::max(0.0f, excess) / Gathered);
}

} // namespace Analysis
