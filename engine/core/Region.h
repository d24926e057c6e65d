#pragma once

#include "contracts/TRect.h"

#include <QSize>

#include <algorithm>

/// Region algebra. Coordinates are pixels of a whole picture, also where only a part of it is in
/// memory, so that every kernel has the same phase in a preview and in an export.
namespace Region {

inline int right(const TRect &r) {
    return r.x + r.width;
}
inline int bottom(const TRect &r) {
    return r.y + r.height;
}
inline TRect fromEdges(int left, int top, int right, int bottom) {
    return {left, top, right - left, bottom - top};
}
inline TRect whole(const QSize &size) {
    return {0, 0, size.width(), size.height()};
}
inline TRect grown(const TRect &r, int halo) {
    return {r.x - halo, r.y - halo, r.width + 2 * halo, r.height + 2 * halo};
}
inline TRect intersected(const TRect &a, const TRect &b) {
    return fromEdges(std::max(a.x, b.x), std::max(a.y, b.y), std::min(right(a), right(b)),
                     std::min(bottom(a), bottom(b)));
}
inline bool contains(const TRect &outer, const TRect &inner) {
    return inner.x >= outer.x && inner.y >= outer.y && right(inner) <= right(outer) &&
           bottom(inner) <= bottom(outer);
}

/// Division that rounds towards minus infinity.
inline int floorDivide(int value, int divisor) {
    return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

/// Index of the pixel that stands for `i` outside [0, size): the picture mirrored at its edges,
/// the edge pixel repeated.
inline int mirrored(int i, int size) {
    const int period = 2 * size;
    i %= period;
    if (i < 0)
        i += period;
    return i < size ? i : period - 1 - i;
}

} // namespace Region
