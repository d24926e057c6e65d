#include "engine/kernels/BlockShrink.h"

#include "engine/kernels/BlockPass.h"

#include <cmath>
#include <numbers>

namespace {

constexpr float Lambda = 2.7f; ///< threshold of the first pass in standard deviations

float normFactor(int k, int n) {
    return k == 0 ? 1.0f / float(n) : 2.0f / float(n);
}

constexpr float FloorMargin = 1.3f; ///< above the mean energy of noise, for its spread from block to block

/// Frequency of a coefficient in cycles per pixel, 0 to about 0.7.
float frequency(int u, int v, int n) {
    return std::hypot(float(u), float(v)) / (2.0f * float(n));
}

float deviation(const BlockShrink::Noise &noise, float f) {
    constexpr float GrainFrequency = 0.12f;
    const float coarse = noise.grain * std::exp(-(f / GrainFrequency) * (f / GrainFrequency));
    return std::hypot(noise.sigma * (1 + coarse), noise.blocks * std::min(1.0f, f / 0.25f));
}

/// Gain that takes a Gaussian blur back, held where it would only lift noise.
float deblurGain(float sigma, float f) {
    constexpr float Ceiling = 2.5f;
    const float pi = std::numbers::pi_v<float>;
    const float inverse = std::exp(2 * pi * pi * sigma * sigma * f * f);
    return inverse / (1 + (inverse - 1) / Ceiling);
}

void toOpponent(const PlaneView *rgb, const PlaneView *opponent) {
    const float y = 1 / std::sqrt(3.0f), u = 1 / std::sqrt(2.0f), v = 1 / std::sqrt(6.0f);
    const TRect &area = opponent[0].area;
    for (int row = area.y; row < Region::bottom(area); ++row) {
        const float *r = rgb[0].at(area.x, row), *g = rgb[1].at(area.x, row), *b = rgb[2].at(area.x, row);
        float *oy = opponent[0].row(row), *ou = opponent[1].row(row), *ov = opponent[2].row(row);
        for (int i = 0; i < area.width; ++i) {
            oy[i] = (r[i] + g[i] + b[i]) * y;
            ou[i] = (r[i] - b[i]) * u;
            ov[i] = (r[i] - 2 * g[i] + b[i]) * v;
        }
    }
}

void toRgb(const PlaneView *opponent, const PlaneView *rgb, const TRect &area) {
    const float y = 1 / std::sqrt(3.0f), u = 1 / std::sqrt(2.0f), v = 1 / std::sqrt(6.0f);
    for (int row = area.y; row < Region::bottom(area); ++row) {
        const float *oy = opponent[0].at(area.x, row), *ou = opponent[1].at(area.x, row);
        const float *ov = opponent[2].at(area.x, row);
        float *r = rgb[0].at(area.x, row), *g = rgb[1].at(area.x, row), *b = rgb[2].at(area.x, row);
        for (int i = 0; i < area.width; ++i) {
            const float base = oy[i] * y + ov[i] * v;
            r[i] = base + ou[i] * u;
            g[i] = oy[i] * y - 2 * v * ov[i];
            b[i] = base - ou[i] * u;
        }
    }
}

} // namespace

BlockShrink::BlockShrink(const Settings &settings)
    : m_detail(settings.detail)
    , m_floor(FloorMargin * 255 * settings.floor * settings.floor) {
    constexpr float Least = 1e-6f; // keeps the gains defined where no noise is assumed
    const Noise noises[] = {settings.luma, settings.chroma};
    for (std::size_t c = 0; c < m_channels.size(); ++c) {
        Channel &channel = m_channels[c];
        for (int v = 0; v < 8; ++v) {
            for (int u = 0; u < 8; ++u) {
                const float limit = Lambda * deviation(noises[c], frequency(u, v, 8));
                m_unit8[v][u] = normFactor(u, 8) * normFactor(v, 8);
                channel.threshold[v][u] = u + v == 0 ? 0 : limit * limit / m_unit8[v][u];
            }
        }
        for (int v = 0; v < 16; ++v) {
            for (int u = 0; u < 16; ++u) {
                const float sigma = std::max(Least, deviation(noises[c], frequency(u, v, 16)));
                m_unit16[v][u] = normFactor(u, 16) * normFactor(v, 16);
                channel.variance[v][u] = u + v == 0 ? 0 : sigma * sigma / m_unit16[v][u];
                m_boost[v][u] = deblurGain(settings.deblur, frequency(u, v, 16));
            }
        }
    }
}

void BlockShrink::runChannel(const Channel &channel, const PlaneView &in, const PlaneView &out,
                             const TRect &area, Scratch &scratch, const std::stop_token &stop) const {
    const Scratch::Scope scope(scratch);
    const PlaneView estimate = scratch.plane(Region::grown(area, 15));
    BlockPass::Shrink8 first{channel.threshold, m_unit8};
    BlockPass::run8(first, in, estimate, scratch, stop);
    if (stop.stop_requested())
        return;
    BlockPass::Shrink16 second{channel.variance, m_unit16, m_boost, m_floor, m_detail};
    BlockPass::run16(second, in, estimate, out, scratch, stop);
}

void BlockShrink::run(const PlaneView *in, const PlaneView *out, const TRect &area, Scratch &scratch,
                      const std::stop_token &stop) const {
    const Scratch::Scope scope(scratch);
    PlaneView noisy[3], clean[3];
    for (int c = 0; c < 3; ++c) {
        noisy[c] = scratch.plane(Region::grown(area, Halo));
        clean[c] = scratch.plane(area);
    }
    toOpponent(in, noisy);
    for (std::size_t c = 0; c < 3; ++c) {
        runChannel(m_channels[c == 0 ? 0 : 1], noisy[c], clean[c], area, scratch, stop);
        if (stop.stop_requested())
            return;
    }
    toRgb(clean, out, area);
}
