#include "engine/kernels/HotPixels.h"

#include <array>
#include <limits>

namespace {

/// How far a spot must rise above the brightest pixel around it, and for each unit by which those differ.
/// Texture left after denoising stays below.
constexpr float LeastRise = 0.08f;
constexpr float RisePerRange = 0.5f;
constexpr float NoSpot = std::numeric_limits<float>::max();

struct Offset {
    int x, y;
};
constexpr std::array<Offset, 16> Ring = {{{-2, -2},
                                          {-1, -2},
                                          {0, -2},
                                          {1, -2},
                                          {2, -2},
                                          {2, -1},
                                          {2, 0},
                                          {2, 1},
                                          {2, 2},
                                          {1, 2},
                                          {0, 2},
                                          {-1, 2},
                                          {-2, 2},
                                          {-2, 1},
                                          {-2, 0},
                                          {-2, -1}}};

/// The brightest pixel around a spot's centre; NoSpot where there is none.
float limitAt(const PlaneView &in, int x, int y) {
    const float value = *in.at(x, y);
    if (value - *in.at(x + 2, y) < LeastRise || value - *in.at(x - 2, y) < LeastRise)
        return NoSpot;
    float low = *in.at(x + 2, y), high = low;
    for (const Offset &offset : Ring) {
        const float around = *in.at(x + offset.x, y + offset.y);
        low = std::min(low, around);
        high = std::max(high, around);
    }
    return value - high >= LeastRise + RisePerRange * (high - low) ? high : NoSpot;
}

} // namespace

void HotPixels::correct(const PlaneView *in, const PlaneView *out, const TRect &area, Scratch &scratch) {
    const Scratch::Scope scope(scratch);
    const PlaneView limits = scratch.plane(Region::grown(area, 1));
    for (int c = 0; c < 3; ++c) {
        for (int y = limits.area.y; y < Region::bottom(limits.area); ++y)
            for (int x = limits.area.x; x < Region::right(limits.area); ++x)
                *limits.at(x, y) = limitAt(in[c], x, y);
        for (int y = area.y; y < Region::bottom(area); ++y) {
            for (int x = area.x; x < Region::right(area); ++x) {
                float value = *in[c].at(x, y);
                for (int row = y - 1; row <= y + 1; ++row)
                    for (int column = x - 1; column <= x + 1; ++column)
                        value = std::min(value, *limits.at(column, row));
                *out[c].at(x, y) = value;
            }
        }
    }
}
