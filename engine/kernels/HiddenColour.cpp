#include "engine/kernels/HiddenColour.h"

#include "engine/kernels/LocalRange.h"

void HiddenColour::fill(const FloatTile &in, const FloatTile &out, Scratch &scratch) {
    constexpr float Visible = 1e-3f; // less than this around a pixel says nothing about its colour
    const Scratch::Scope scope(scratch);
    const TRect around = Region::grown(out.area, Radius);
    const PlaneView weight = scratch.plane(out.area), sum = scratch.plane(out.area);
    const PlaneView weighted = scratch.plane(around);
    boxMean(in.planes[3], Radius, weight, scratch);
    for (int c = 0; c < 3; ++c) {
        for (int y = around.y; y < Region::bottom(around); ++y) {
            const float *v = in.planes[c].at(around.x, y), *a = in.planes[3].at(around.x, y);
            for (int x = 0; x < around.width; ++x)
                weighted.row(y)[x] = v[x] * a[x];
        }
        boxMean(weighted, Radius, sum, scratch);
        for (int y = out.area.y; y < Region::bottom(out.area); ++y) {
            const float *v = in.planes[c].at(out.area.x, y), *a = in.planes[3].at(out.area.x, y);
            const float *s = sum.row(y), *w = weight.row(y);
            float *target = out.planes[c].row(y);
            for (int x = 0; x < out.area.width; ++x)
                target[x] = w[x] < Visible ? v[x] : a[x] * v[x] + (1 - a[x]) * (s[x] / w[x]);
        }
    }
}
