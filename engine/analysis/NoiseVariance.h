#pragma once

#include "engine/analysis/BlockSpectrum.h"

#include <vector>

namespace Analysis {

using Blocks = std::vector<BlockSpectrum>;
using Indices = std::vector<std::size_t>;

/// Up to this ratio of the middle to the high band noise counts as white.
constexpr float WhiteRatio = 1.4f;

/// Of the noise of one channel, at two bands of frequencies.
struct Variances {
    float high = 0;
    float middle = 0;
    bool noisy = false; ///< these blocks hold noise and little else

    bool isWhite() const { return middle < WhiteRatio * high; }
    float total() const;
};

/// In the flattest of these blocks. They are chosen by other bands than the one that is measured in them,
/// so that choosing flat ones doesn't bias the answer.
Variances variancesIn(const Blocks &blocks, const Indices &candidates, std::size_t channel);

/// Noise grows or shrinks with brightness: an average over bands of brightness, each by its size. Bands in
/// which texture can't be told from noise are left out.
float averageVariance(const Blocks &blocks, const Indices &candidates, std::size_t channel);

} // namespace Analysis
