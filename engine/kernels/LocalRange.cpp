#include "engine/kernels/LocalRange.h"

namespace {

/// Folds `2 * radius + 1` neighbours of each sample along a row, then along columns. The order is
/// the same for every sample, so that sums don't depend on where an area begins.
template <typename Fold>
void folded(const PlaneView &in, int radius, const PlaneView &out, Scratch &scratch, Fold fold) {
    const Scratch::Scope scope(scratch);
    const TRect &area = out.area;
    const PlaneView rows = scratch.plane({area.x, area.y - radius, area.width, area.height + 2 * radius});
    for (int y = rows.area.y; y < Region::bottom(rows.area); ++y) {
        const float *source = in.at(area.x, y);
        float *target = rows.row(y);
        for (int x = 0; x < area.width; ++x)
            target[x] = source[x - radius];
        for (int d = 1 - radius; d <= radius; ++d)
            for (int x = 0; x < area.width; ++x)
                target[x] = fold(target[x], source[x + d]);
    }
    for (int y = area.y; y < Region::bottom(area); ++y) {
        float *target = out.at(area.x, y);
        std::copy_n(rows.row(y - radius), area.width, target);
        for (int d = 1 - radius; d <= radius; ++d) {
            const float *source = rows.row(y + d);
            for (int x = 0; x < area.width; ++x)
                target[x] = fold(target[x], source[x]);
        }
    }
}

} // namespace

void localRange(const PlaneView &in, int radius, const PlaneView &low, const PlaneView &high,
                Scratch &scratch) {
    folded(in, radius, low, scratch, [](float a, float b) { return b < a ? b : a; });
    folded(in, radius, high, scratch, [](float a, float b) { return a < b ? b : a; });
}

void boxMean(const PlaneView &in, int radius, const PlaneView &out, Scratch &scratch) {
    folded(in, radius, out, scratch, [](float a, float b) { return a + b; });
    const float factor = 1.0f / float((2 * radius + 1) * (2 * radius + 1));
    for (int y = out.area.y; y < Region::bottom(out.area); ++y) {
        float *row = out.row(y);
        for (int x = 0; x < out.area.width; ++x)
            row[x] *= factor;
    }
}
