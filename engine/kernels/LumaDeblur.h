#pragma once

#include "engine/kernels/InverseFilter.h"

/// Takes a blur back on brightness alone. Detail is let through as far as it stands out from the
/// noise, and the result may leave the range of its neighbourhood only by a share of that range,
/// so that edges get no halos.
class LumaDeblur {
public:
    struct Settings {
        BlurShape blur;
        /// Standard deviation of the noise that the filter reckons with, samples from 0 to 1, and of
        /// what is still there when it runs. Apart, so that a slider that takes noise away first
        /// doesn't turn the sharpening up.
        double noise = 0;
        double remaining = 0;
        double overshoot = 0; ///< share of the local range
        int radius = 8;       ///< support of the filter
    };

    explicit LumaDeblur(const Settings &settings);

    int halo() const { return m_kernel.radius + GateRadius; }
    bool isIdentity() const { return m_kernel.isIdentity(); }

    /// `in` and `out` hold planes R, G, B; `in` covers `area` grown by the halo.
    void run(const PlaneView *in, const PlaneView *out, const TRect &area, Scratch &scratch,
             const std::stop_token &stop) const;

private:
    static constexpr int GateRadius = 2;
    ConvolutionKernel m_kernel;
    int m_rangeRadius = 1;
    float m_overshoot = 0;
    float m_noiseEnergy = 0; ///< of the added detail
};

/// Brightness as the filters that leave colour alone use it.
inline float lumaOf(float r, float g, float b) {
    return 0.299f * r + 0.587f * g + 0.114f * b;
}

/// Brightness of `rgb` over luma.area.
void fillLuma(const PlaneView *rgb, const PlaneView &luma);
