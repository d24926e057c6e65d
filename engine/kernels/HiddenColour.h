#pragma once

#include "engine/core/FloatTile.h"

/// Gives pixels the colour of their visible neighbours as far as they are transparent themselves, so
/// that a filter that looks around a pixel finds nothing there that can't be seen.
namespace HiddenColour {

constexpr int Radius = 6;

/// `in` holds planes R, G, B, A and covers out's area grown by the radius; `out` planes R, G, B.
void fill(const FloatTile &in, const FloatTile &out, Scratch &scratch);

} // namespace HiddenColour
