#pragma once

#include "engine/analysis/Planes.h"

#include <array>
#include <vector>

namespace Analysis {

/// Orthonormal 8 x 8 cosine transform of the block whose first sample is `source`, row `stride`
/// samples apart.
void cosineTransform(const float *source, int stride, std::array<float, 64> &target);

/// What an 8 x 8 block holds at low, middle and high frequencies: mean squares of its cosine
/// coefficients, so that white noise of variance v gives v in each band.
struct BlockSpectrum {
    /// Bands are u + v in 1..2, 3..5 and 8..14.
    static constexpr std::array<int, 3> Counts = {5, 15, 28};
    /// Red, green, blue, luma, red - luma, blue - luma.
    std::array<std::array<float, 3>, 6> band = {};
    std::array<float, 4> mean = {}; ///< of red, green, blue, luma

    float sumOf(std::size_t b) const { return band[0][b] + band[1][b] + band[2][b]; }
    float low() const { return sumOf(0) * float(Counts[0]); }
    float middle() const { return sumOf(1) * float(Counts[1]); }
    float high() const { return sumOf(2) * float(Counts[2]); }
};

/// Appends the spectra of all whole blocks of the crop.
void appendSpectra(const Crop &crop, std::vector<BlockSpectrum> &blocks);

} // namespace Analysis
