#include "engine/kernels/LumaDeblur.h"

#include "engine/kernels/LocalRange.h"

#include <cmath>

void fillLuma(const PlaneView *rgb, const PlaneView &luma) {
    const TRect &area = luma.area;
    for (int y = area.y; y < Region::bottom(area); ++y) {
        const float *r = rgb[0].at(area.x, y), *g = rgb[1].at(area.x, y), *b = rgb[2].at(area.x, y);
        float *out = luma.row(y);
        for (int x = 0; x < area.width; ++x)
            out[x] = lumaOf(r[x], g[x], b[x]);
    }
}

LumaDeblur::LumaDeblur(const Settings &settings)
    : m_kernel(inverseFilter(settings.blur, settings.noise, settings.radius))
    , m_overshoot(float(settings.overshoot)) {
    ConvolutionKernel detail = m_kernel;
    for (ConvolutionKernel::Tap &tap : detail.taps)
        if (tap.dx == 0 && tap.dy == 0)
            tap.weight -= 1;
    const double gain = settings.remaining * double(detail.noiseGain());
    m_noiseEnergy = float(gain * gain);
    m_rangeRadius = std::clamp(int(std::ceil(settings.blur.extent)), 1, GateRadius + m_kernel.radius);
    m_rangeRadius = std::min(m_rangeRadius, 4);
}

void LumaDeblur::run(const PlaneView *in, const PlaneView *out, const TRect &area, Scratch &scratch,
                     const std::stop_token &stop) const {
    const Scratch::Scope scope(scratch);
    const TRect wide = Region::grown(area, GateRadius);
    const PlaneView luma = scratch.plane(Region::grown(area, halo()));
    const PlaneView detail = scratch.plane(wide);
    const PlaneView squared = scratch.plane(wide);
    const PlaneView energy = scratch.plane(area), low = scratch.plane(area), high = scratch.plane(area);
    fillLuma(in, luma);
    convolve(m_kernel, luma, detail, stop);
    if (stop.stop_requested())
        return;
    for (int y = wide.y; y < Region::bottom(wide); ++y) {
        const float *l = luma.at(wide.x, y);
        float *d = detail.row(y), *s = squared.row(y);
        for (int x = 0; x < wide.width; ++x) {
            d[x] -= l[x];
            s[x] = d[x] * d[x];
        }
    }
    boxMean(squared, GateRadius, energy, scratch);
    localRange(luma, m_rangeRadius, low, high, scratch);
    for (int y = area.y; y < Region::bottom(area); ++y) {
        const float *l = luma.at(area.x, y), *d = detail.at(area.x, y), *e = energy.row(y);
        const float *lo = low.row(y), *hi = high.row(y);
        const float *r = in[0].at(area.x, y), *g = in[1].at(area.x, y), *b = in[2].at(area.x, y);
        float *outR = out[0].at(area.x, y), *outG = out[1].at(area.x, y), *outB = out[2].at(area.x, y);
        for (int x = 0; x < area.width; ++x) {
            const float signal = std::max(0.0f, e[x] - m_noiseEnergy);
            const float gate = signal / (signal + m_noiseEnergy + 1e-12f);
            const float beyond = m_overshoot * (hi[x] - lo[x]);
            const float wanted = l[x] + gate * d[x];
            const float change = std::max(lo[x] - beyond, std::min(hi[x] + beyond, wanted)) - l[x];
            outR[x] = r[x] + change;
            outG[x] = g[x] + change;
            outB[x] = b[x] + change;
        }
    }
}
