#include "engine/kernels/EdgeSharpen.h"

#include "engine/kernels/LocalRange.h"

void EdgeSharpen::run(const PlaneView &luma, const PlaneView *rgb, const TRect &area,
                      Scratch &scratch) const {
    constexpr float Flat = 1e-6f; // squared gradient below which there is no edge
    const Scratch::Scope scope(scratch);
    const PlaneView low = scratch.plane(area), high = scratch.plane(area);
    localRange(luma, step, low, high, scratch);
    for (int y = area.y; y < Region::bottom(area); ++y) {
        const float *up = luma.at(area.x, y - step), *here = luma.at(area.x, y),
                    *down = luma.at(area.x, y + step);
        const float *lo = low.row(y), *hi = high.row(y);
        float *r = rgb[0].at(area.x, y), *g = rgb[1].at(area.x, y), *b = rgb[2].at(area.x, y);
        for (int x = 0; x < area.width; ++x) {
            const float gx = 0.5f * (here[x + step] - here[x - step]);
            const float gy = 0.5f * (down[x] - up[x]);
            const float xx = here[x + step] - 2 * here[x] + here[x - step];
            const float yy = down[x] - 2 * here[x] + up[x];
            const float xy = 0.25f * (down[x + step] - down[x - step] - up[x + step] + up[x - step]);
            const float across =
                (gx * gx * xx + 2 * gx * gy * xy + gy * gy * yy) / (gx * gx + gy * gy + Flat);
            const float wanted = here[x] - amount * across;
            const float change = std::max(lo[x], std::min(hi[x], wanted)) - here[x];
            r[x] += change;
            g[x] += change;
            b[x] += change;
        }
    }
}
