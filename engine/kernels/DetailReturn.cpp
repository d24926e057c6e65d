#include "engine/kernels/DetailReturn.h"

#include "engine/kernels/LocalRange.h"

namespace {

float luma(float r, float g, float b) {
    return 0.299f * r + 0.587f * g + 0.114f * b;
}

} // namespace

void DetailReturn::run(const PlaneView *original, const PlaneView *clean, const PlaneView *out,
                       const TRect &area, Scratch &scratch) const {
    constexpr float Margin = 1.5f; // above the mean energy of noise, for its spread from place to place
    const Scratch::Scope scope(scratch);
    const PlaneView squared = scratch.plane(Region::grown(area, Radius)), energy = scratch.plane(area);
    const TRect &around = squared.area;
    for (int y = around.y; y < Region::bottom(around); ++y) {
        const float *o[3], *n[3];
        for (int c = 0; c < 3; ++c) {
            o[c] = original[c].at(around.x, y);
            n[c] = clean[c].at(around.x, y);
        }
        for (int x = 0; x < around.width; ++x) {
            const float removed = luma(o[0][x] - n[0][x], o[1][x] - n[1][x], o[2][x] - n[2][x]);
            squared.row(y)[x] = removed * removed;
        }
    }
    boxMean(squared, Radius, energy, scratch);
    const float floor = noise * noise;
    for (int y = area.y; y < Region::bottom(area); ++y) {
        for (int x = 0; x < area.width; ++x) {
            const float texture = std::max(0.0f, energy.row(y)[x] - Margin * floor);
            const float back = amount * texture / (texture + floor + 1e-12f);
            for (int c = 0; c < 3; ++c) {
                const float kept = *clean[c].at(area.x + x, y);
                *out[c].at(area.x + x, y) = kept + back * (*original[c].at(area.x + x, y) - kept);
            }
        }
    }
}
