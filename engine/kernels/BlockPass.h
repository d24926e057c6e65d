#pragma once

#include "engine/core/FloatTile.h"

#include <stop_token>

/// One pass of overlapping cosine blocks over a plane. Blocks stand at multiples of the step in
/// coordinates of the whole picture. A block is transformed along its rows once for all blocks
/// that share them, and transformed back likewise: both are linear, so the weighted sums can be
/// taken in between.
namespace BlockPass {

/// 8 x 8, step 2: coefficients below the threshold go; a block counts the more, the fewer remain.
struct Shrink8 {
    const float (*threshold)[8]; ///< of squared coefficients
    const float (*unit)[8];      ///< squared norm factors
};
/// 16 x 16, step 4: Wiener gains from a first estimate. Each gain is lifted by `detail` times the
/// share of the block's energy that stands above `floor`, then multiplied by `boost`.
struct Shrink16 {
    const float (*variance)[16];
    const float (*unit)[16];
    const float (*boost)[16];
    float floor; ///< energy of a block of mere noise
    float detail;
};

/// `in` covers out.area grown by 7.
void run8(const Shrink8 &shrink, const PlaneView &in, const PlaneView &out, Scratch &scratch,
          const std::stop_token &stop);
/// `in` and `estimate` cover out.area grown by 15.
void run16(const Shrink16 &shrink, const PlaneView &in, const PlaneView &estimate, const PlaneView &out,
           Scratch &scratch, const std::stop_token &stop);

} // namespace BlockPass
