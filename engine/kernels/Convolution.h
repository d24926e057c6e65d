#pragma once

#include "engine/core/FloatTile.h"

#include <stop_token>
#include <vector>

/// A filter of finite support: out(x, y) = sum of weight * in(x + dx, y + dy).
struct ConvolutionKernel {
    struct Tap {
        int dx;
        int dy;
        float weight;
    };
    std::vector<Tap> taps;
    int radius = 0;

    /// Square root of the sum of squared weights: what white noise is multiplied by.
    float noiseGain() const;
    bool isIdentity() const { return taps.size() == 1 && radius == 0; }
};

/// `in` covers out.area grown by the radius.
void convolve(const ConvolutionKernel &kernel, const PlaneView &in, const PlaneView &out,
              const std::stop_token &stop);
