#include "engine/kernels/TileResize.h"

namespace {

constexpr float LeastAlpha = 1e-4f; ///< so that colour is defined where nothing is to be seen

template <typename Change>
void eachSample(const PlaneView &plane, const PlaneView &alpha, Change change) {
    for (int y = plane.area.y; y < Region::bottom(plane.area); ++y) {
        float *p = plane.row(y);
        const float *a = alpha.at(plane.area.x, y);
        for (int x = 0; x < plane.area.width; ++x)
            p[x] = change(p[x], std::max(LeastAlpha, a[x]));
    }
}

} // namespace

void resampleTile(const Resampler &horizontal, const Resampler &vertical, const FloatTile &in,
                  const FloatTile &out, Scratch &scratch) {
    for (int c = in.channels - 1; c >= 0; --c) { // alpha first: the others are divided by it
        const bool weighted = in.channels == 4 && c < 3;
        if (weighted)
            eachSample(in.planes[c], in.planes[3], [](float v, float a) { return v * a; });
        resample(horizontal, vertical, in.planes[c], out.planes[c], scratch);
        if (weighted)
            eachSample(out.planes[c], out.planes[3], [](float v, float a) { return v / a; });
    }
}
