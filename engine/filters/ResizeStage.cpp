#include "engine/filters/ResizeStage.h"

#include <cmath>

ResizeStage::ResizeStage(double scale, const QSize &input)
    : m_scale(scale)
    , m_input(input)
    , m_output(std::max(1, int(std::lround(input.width() * scale))),
               std::max(1, int(std::lround(input.height() * scale)))) {
}

TRect ResizeStage::outputRegion(const TRect &input) const {
    const auto span = [](int from, int to, int size, int outSize) {
        const auto edge = [&](int i) { return int((qint64(i) * outSize + size / 2) / size); };
        const int first = std::min(edge(from), outSize - 1);
        return std::pair(first, std::max(edge(to), first + 1));
    };
    const auto [left, right] = span(input.x, Region::right(input), m_input.width(), m_output.width());
    const auto [top, bottom] = span(input.y, Region::bottom(input), m_input.height(), m_output.height());
    return Region::fromEdges(left, top, right, bottom);
}
