#include "engine/kernels/RangeLimit.h"

#include "engine/kernels/LocalRange.h"

void RangeLimit::run(const PlaneView *original, const PlaneView *sharp, const TRect &area,
                     Scratch &scratch) const {
    const Scratch::Scope scope(scratch);
    const PlaneView low = scratch.plane(area), high = scratch.plane(area);
    for (int c = 0; c < 3; ++c) {
        localRange(original[c], Radius, low, high, scratch);
        for (int y = area.y; y < Region::bottom(area); ++y) {
            const float *lo = low.row(y), *hi = high.row(y);
            float *v = sharp[c].at(area.x, y);
            for (int x = 0; x < area.width; ++x) {
                const float more = beyond * (hi[x] - lo[x]);
                v[x] = std::max(lo[x] - more, std::min(hi[x] + more, v[x]));
            }
        }
    }
}
