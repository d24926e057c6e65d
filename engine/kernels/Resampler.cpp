#include "engine/kernels/Resampler.h"

#include <cmath>
#include <numbers>

namespace {

/// Interpolates with the slope -c at 1.
double cubic(double x, double c) {
    x = std::abs(x);
    if (x < 1)
        return ((2 - c) * x + (c - 3)) * x * x + 1;
    if (x < 2)
        return -c * (((x - 5) * x + 8) * x - 4);
    return 0;
}

double lanczos3(double x) {
    if (std::abs(x) < 1e-9)
        return 1;
    if (std::abs(x) >= 3)
        return 0;
    const double z = std::numbers::pi * x;
    return 3 * std::sin(z) * std::sin(z / 3) / (z * z);
}

} // namespace

Resampler::Resampler(Kernel kernel, int from, int to)
    : m_kernel(kernel)
    , m_ratio(double(from) / to)
    , m_stretch(std::max(1.0, m_ratio))
    , m_support((kernel == Kernel::Lanczos3 ? 3 : 2) * m_stretch)
    , m_taps(int(std::ceil(2 * m_support)) + 1) {
}

double Resampler::kernel(double x) const {
    switch (m_kernel) {
    case Kernel::CatmullRom:
        return cubic(x, 0.5);
    case Kernel::SharpCubic:
        return cubic(x, 0.75);
    case Kernel::Lanczos3:
        return lanczos3(x);
    }
    return 0;
}

int Resampler::firstTap(int output) const {
    return int(std::ceil(centre(output) - m_support));
}

Resampler::Span Resampler::inputSpan(int first, int last) const {
    const int from = firstTap(first);
    return {from, firstTap(last) + m_taps - from};
}

void Resampler::weights(int output, float *w) const {
    const double middle = centre(output);
    const int first = firstTap(output);
    double sum = 0;
    for (int i = 0; i < m_taps; ++i)
        sum += kernel((first + i - middle) / m_stretch);
    for (int i = 0; i < m_taps; ++i)
        w[i] = float(kernel((first + i - middle) / m_stretch) / sum);
}

void resample(const Resampler &horizontal, const Resampler &vertical, const PlaneView &in,
              const PlaneView &out, Scratch &scratch) {
    const Scratch::Scope scope(scratch);
    const TRect &area = out.area;
    const Resampler::Span rows = vertical.inputSpan(area.y, Region::bottom(area) - 1);
    const PlaneView middle = scratch.plane({area.x, rows.first, area.width, rows.count});

    const int taps = horizontal.taps();
    float *weights = scratch.floats(std::size_t(taps) * std::size_t(area.width));
    for (int x = 0; x < area.width; ++x)
        horizontal.weights(area.x + x, weights + std::ptrdiff_t(x) * taps);
    for (int y = rows.first; y < rows.first + rows.count; ++y) {
        const float *source = in.row(y);
        float *target = middle.row(y);
        for (int x = 0; x < area.width; ++x) {
            const float *s = source + (horizontal.firstTap(area.x + x) - in.area.x);
            const float *w = weights + std::ptrdiff_t(x) * taps;
            float sum = 0;
            for (int i = 0; i < taps; ++i)
                sum += w[i] * s[i];
            target[x] = sum;
        }
    }

    float *column = scratch.floats(std::size_t(vertical.taps()));
    for (int y = area.y; y < Region::bottom(area); ++y) {
        vertical.weights(y, column);
        float *target = out.row(y);
        std::fill_n(target, area.width, 0.0f);
        for (int i = 0; i < vertical.taps(); ++i) {
            const float *source = middle.row(vertical.firstTap(y) + i);
            for (int x = 0; x < area.width; ++x)
                target[x] += column[i] * source[x];
        }
    }
}
