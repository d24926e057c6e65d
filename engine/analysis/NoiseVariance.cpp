#include "engine/analysis/NoiseVariance.h"

#include <algorithm>
#include <cmath>

namespace Analysis {

namespace {

/// Fewer for the high frequencies, which texture reaches first, than for the middle ones, whose least
/// power is what counts.
constexpr double FlattestShare = 0.02;
constexpr double FlattestShareMiddle = 0.05;
constexpr std::size_t FewestBlocks = 48;
/// Share of the middle band in the variance of noise as its correlation goes from none to that of
/// heavily compressed or interpolated noise; found by trying (0.51 to 0.58).
constexpr float MiddleWeight = 0.55f;
/// Noise gives the same variance at a low and a high quantile of the blocks; texture doesn't.
constexpr float MostUneven = 1.5f;
/// White noise more exactly so than what demosaicing and compression left.
constexpr float MostUnevenWhite = 1.3f;
/// The chosen blocks hold noise alone when their low frequencies hold little more than the others. With
/// correlated noise, whose spectrum falls, more by the root of the ratio of the other two.
constexpr float MostLow = 1.25f;
constexpr std::size_t BrightnessBands = 6;
constexpr std::size_t FewestInBand = 200;
/// Between bands of brightness, noise varies by no more than this; what exceeds it is texture. White
/// noise was added to all of them alike; what a camera left follows the light.
constexpr float MostBandRatio = 1.4f, MostBandRatioWhite = 1.2f;
/// The band that the others are compared with: this share of the blocks lies in bands with less noise. A
/// small band of sky says enough about white noise; of correlated noise it may have lost most.
constexpr float LowerShare = 0.25f, LowerShareWhite = 0.12f;

/// The blocks among `order` in which the key is smallest.
template <typename Key>
Indices flattest(Indices order, double share, Key key) {
    const std::size_t wanted =
        std::min(order.size(), std::max(FewestBlocks, std::size_t(share * double(order.size()))));
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

struct BandNoise {
    float variance;
    float blocks;
    bool noisy;
    bool white;
};

float lowerVariance(std::vector<BandNoise> bands, float share) {
    std::sort(bands.begin(), bands.end(),
              [](const BandNoise &a, const BandNoise &b) { return a.variance < b.variance; });
    float all = 0;
    for (const BandNoise &band : bands)
        all += band.blocks;
    float sum = 0;
    for (const BandNoise &band : bands) {
        sum += band.blocks;
        if (sum >= share * all)
            return band.variance;
    }
    return 0;
}

} // namespace

float Variances::total() const {
    return isWhite() ? high : MiddleWeight * middle + (1 - MiddleWeight) * high;
}

Variances variancesIn(const Blocks &blocks, const Indices &candidates, std::size_t channel) {
    const Indices forHigh = flattest(candidates, FlattestShare,
                                     [&](std::size_t i) { return blocks[i].low() + blocks[i].middle(); });
    const Indices forMiddle = flattest(candidates, FlattestShareMiddle,
                                       [&](std::size_t i) { return blocks[i].low() + blocks[i].high(); });
    Variances found;
    const std::vector<float> high = energiesOf(blocks, forHigh, channel, 2);
    found.high = meanFromQuantile(high, Median, BlockSpectrum::Counts[2]);
    const std::vector<float> middle = energiesOf(blocks, forMiddle, channel, 1);
    found.middle = meanFromQuantile(middle, LowestTenth, BlockSpectrum::Counts[1]);
    if (meanFromQuantile(middle, UpperQuartile, BlockSpectrum::Counts[1]) > MostUneven * found.middle)
        found.middle = std::min(found.middle, found.high);
    const float low =
        meanFromQuantile(energiesOf(blocks, forHigh, channel, 0), Median, BlockSpectrum::Counts[0]);
    const float falling = std::max(1.0f, found.middle / std::max(found.high, 1e-12f));
    const float uneven = found.isWhite() ? MostUnevenWhite : MostUneven;
    found.noisy = low < MostLow * std::sqrt(falling) * std::max(found.middle, found.high) &&
                  meanFromQuantile(high, UpperQuartile, BlockSpectrum::Counts[2]) <
                      uneven * meanFromQuantile(high, LowestTenth, BlockSpectrum::Counts[2]);
    return found;
}

float averageVariance(const Blocks &blocks, const Indices &candidates, std::size_t channel) {
    std::array<Indices, BrightnessBands> bands;
    for (const std::size_t i : candidates) {
        const auto band = std::size_t(std::max(0.0f, blocks[i].mean[3]) * float(BrightnessBands));
        bands[std::min(band, BrightnessBands - 1)].push_back(i);
    }
    std::vector<BandNoise> found;
    for (const Indices &band : bands) {
        if (band.size() < FewestInBand)
            continue;
        const Variances variances = variancesIn(blocks, band, channel);
        found.push_back({variances.total(), float(band.size()), variances.noisy, variances.isWhite()});
    }
    if (std::none_of(found.begin(), found.end(), [](const BandNoise &band) { return band.noisy; }))
        return variancesIn(blocks, candidates, channel).total();
    const bool white =
        std::all_of(found.begin(), found.end(), [](const BandNoise &band) { return band.white; });
    const float most = white ? MostBandRatioWhite * lowerVariance(found, LowerShareWhite)
                             : MostBandRatio * lowerVariance(found, LowerShare);
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

} // namespace Analysis
