#pragma once

#include "engine/kernels/Resampler.h"

/// Resizes every plane of a tile. Colours weigh by their alpha, so that what lies behind transparent
/// pixels doesn't bleed in; the colour planes of `in` are changed on the way.
void resampleTile(const Resampler &horizontal, const Resampler &vertical, const FloatTile &in,
                  const FloatTile &out, Scratch &scratch);
