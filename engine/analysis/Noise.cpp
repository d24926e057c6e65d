#include "engine/analysis/Noise.h"

#include "engine/analysis/BlockSpectrum.h"
#include "engine/analysis/ClippedNoise.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Analysis {

namespace {

constexpr double FlattestShare = 0.05;
constexpr std::size_t FewestBlocks = 48;
/// Blocks nearer to black or white than this many deviations lose much of their noise to clipping.
constexpr float SafeDistance = 1.5f;
constexpr std::size_t FewestSafe = 200;
/// A block whose mean is this near to black or white holds no signal that noise could show on.
constexpr float Saturated = 0.004f;
/// Share of the middle band in the variance of noise as its correlation goes from none to that of
/// heavily compressed or interpolated noise; found by trying (0.51 to 0.58).
constexpr float MiddleWeight = 0.55f;
/// Noise gives the same variance at a low and a high quantile of the blocks; texture doesn't.
constexpr float MostUneven = 1.5f;
/// The chosen blocks hold noise alone when their low frequencies hold little more than the others.
constexpr float MostLow = 2.5f;
/// Up to this ratio of the middle to the high band noise counts as white.
constexpr float WhiteRatio = 1.4f;
constexpr std::size_t BrightnessBands = 6;
constexpr std::size_t FewestInBand = 200;
/// Between bands of brightness, noise varies by no more than this; what exceeds it is texture.
constexpr float MostBandRatio = 1.7f;
constexpr float TexturedRatio = 1.15f;
/// Difference of the mean squared frequencies of the two bands, for Gaussian correlation.
constexpr float GrainScale = 4.4f;
/// Deviation that rounding to 8 bits leaves in the luma.
constexpr float Rounding = 0.2f / 255;

using Blocks = std::vector<BlockSpectrum>;
using Indices = std::vector<std::size_t>;

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

/// The blocks among `order` in which the key is smallest.
template <typename Key>
Indices flattest(Indices order, Key key) {
    const std::size_t wanted =
        std::min(order.size(), std::max(FewestBlocks, std::size_t(FlattestShare * double(order.size()))));
    std::nth_element(
        order.begin(), order.begin() + std::ptrdiff_t(wanted), order.end(),
        [&key](std::size_t a, std::size_t b) { return key(a) < key(b) || (key(a) == key(b) && a < b); });
    order.resize(wanted);
    return order;
}

struct Quantile {
    double share;
    double deviate; ///< of the normal distribution
};
constexpr Quantile LowestTenth = {0.1, -1.2816};
constexpr Quantile Median = {0.5, 0};
constexpr Quantile UpperQuartile = {0.75, 0.6745};

/// A quantile of chi-square distributed energies of this many degrees of freedom, divided by what
/// it would be for energies of mean 1: their mean, and hardly moved by texture in some blocks.
/// Wilson and Hilferty's approximation.
float meanFromQuantile(std::vector<float> energies, Quantile quantile, int freedom) {
    if (energies.empty())
        return 0;
    const auto at = energies.begin() + std::ptrdiff_t(quantile.share * double(energies.size() - 1));
    std::nth_element(energies.begin(), at, energies.end());
    const double spread = 2.0 / (9.0 * freedom);
    return float(*at / std::pow(1 - spread + quantile.deviate * std::sqrt(spread), 3));
}

std::vector<float> energiesOf(const Blocks &blocks, const Indices &chosen, std::size_t channel,
                              std::size_t band) {
    std::vector<float> energies;
    energies.reserve(chosen.size());
    for (const std::size_t i : chosen)
        energies.push_back(blocks[i].band[channel][band]);
    return energies;
}

struct Variances {
    float high = 0;
    float middle = 0;
    bool noisy = false; ///< these blocks hold noise and little else

    float total() const {
        return middle < WhiteRatio * high ? high : MiddleWeight * middle + (1 - MiddleWeight) * high;
    }
};

/// Variance of the noise of one channel at high and middle frequencies, among these blocks. The
/// blocks are chosen by other bands than the one that is measured in them, so that choosing flat
/// ones doesn't bias the answer.
Variances variancesIn(const Blocks &blocks, const Indices &candidates, std::size_t channel) {
    const Indices forHigh =
        flattest(candidates, [&](std::size_t i) { return blocks[i].low() + blocks[i].middle(); });
    const Indices forMiddle =
        flattest(candidates, [&](std::size_t i) { return blocks[i].low() + blocks[i].high(); });
    Variances found;
    const std::vector<float> high = energiesOf(blocks, forHigh, channel, 2);
    found.high = meanFromQuantile(high, Median, BlockSpectrum::Counts[2]);
    const std::vector<float> middle = energiesOf(blocks, forMiddle, channel, 1);
    found.middle = meanFromQuantile(middle, LowestTenth, BlockSpectrum::Counts[1]);
    if (meanFromQuantile(middle, UpperQuartile, BlockSpectrum::Counts[1]) > MostUneven * found.middle)
        found.middle = std::min(found.middle, found.high);
    const float low =
        meanFromQuantile(energiesOf(blocks, forHigh, channel, 0), Median, BlockSpectrum::Counts[0]);
    found.noisy = low < MostLow * std::max(found.middle, found.high) &&
                  meanFromQuantile(high, UpperQuartile, BlockSpectrum::Counts[2]) <
                      MostUneven * meanFromQuantile(high, LowestTenth, BlockSpectrum::Counts[2]);
    return found;
}

float unclippedVariance(const Blocks &blocks, const Indices &chosen, std::size_t channel, float variance) {
    const float raw = std::sqrt(variance);
    float sum = 0;
    for (const std::size_t i : chosen) {
        const float deviation = unclippedDeviation(blocks[i].mean[channel], raw);
        sum += deviation * deviation;
    }
    return chosen.empty() ? 0 : sum / float(chosen.size());
}

struct BandNoise {
    float variance;
    float blocks;
    bool noisy;
};

/// The variance that two fifths of the blocks lie in bands below or at.
float lowerVariance(std::vector<BandNoise> bands) {
    std::sort(bands.begin(), bands.end(),
              [](const BandNoise &a, const BandNoise &b) { return a.variance < b.variance; });
    float all = 0;
    for (const BandNoise &band : bands)
        all += band.blocks;
    float sum = 0;
    for (const BandNoise &band : bands) {
        sum += band.blocks;
        if (sum >= 0.4f * all)
            return band.variance;
    }
    return 0;
}

/// Noise grows or shrinks with brightness: an average over bands of brightness, each by its size.
/// Bands in which texture can't be told from noise are left out.
float averageVariance(const Blocks &blocks, const Indices &candidates, std::size_t channel) {
    std::array<Indices, BrightnessBands> bands;
    for (const std::size_t i : candidates) {
        const auto band = std::size_t(blocks[i].mean[3] * float(BrightnessBands));
        bands[std::min(band, BrightnessBands - 1)].push_back(i);
    }
    std::vector<BandNoise> found;
    for (const Indices &band : bands) {
        if (band.size() < FewestInBand)
            continue;
        const Variances variances = variancesIn(blocks, band, channel);
        found.push_back({unclippedVariance(blocks, band, channel, variances.total()), float(band.size()),
                         variances.noisy});
    }
    if (std::none_of(found.begin(), found.end(), [](const BandNoise &band) { return band.noisy; }))
        return unclippedVariance(blocks, candidates, channel,
                                 variancesIn(blocks, candidates, channel).total());
    const float most = MostBandRatio * lowerVariance(found);
    float sum = 0;
    float weights = 0;
    for (const BandNoise &band : found) {
        if (!band.noisy)
            continue;
        sum += band.blocks * std::min(band.variance, most);
        weights += band.blocks;
    }
    return sum / weights;
}

float channelVariance(const Blocks &blocks, std::size_t channel) {
    const Indices usable = within(blocks, {channel}, Saturated);
    if (usable.empty())
        return 0;
    const float first = averageVariance(blocks, usable, channel);
    const Indices safe = within(blocks, {channel}, SafeDistance * std::sqrt(first));
    if (safe.size() < FewestSafe)
        return first;
    // The safe blocks give the better answer unless they are the textured ones.
    const float better = averageVariance(blocks, safe, channel);
    return better < TexturedRatio * first ? better : first;
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
    for (std::size_t c = 0; c < 3; ++c) {
        if (stop.stop_requested())
            return {};
        variance[c] = channelVariance(blocks, c);
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
    const float floor = Rounding * Rounding;
    if (luma.middle > WhiteRatio * std::max(luma.high, floor))
        levels.grainSize = std::sqrt(std::log(luma.middle / std::max(luma.high, floor)) / GrainScale);
    return levels;
}

} // namespace Analysis
