#pragma once

#include "engine/core/FloatTile.h"

/// Takes lone bright spots out: what a hot photosite leaves behind after demosaicing and denoising, at most
/// 3 x 3 pixels that stand out from all 16 pixels around them. An edge or a line goes on through that ring
/// and so isn't one.
namespace HotPixels {

inline constexpr int Halo = 3;

/// Planes R, G, B of `in` cover out.area grown by the halo; writes them over out.area.
void correct(const PlaneView *in, const PlaneView *out, const TRect &area, Scratch &scratch);

} // namespace HotPixels
