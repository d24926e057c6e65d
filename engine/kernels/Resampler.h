#pragma once

#include "engine/core/FloatTile.h"

#include <vector>

/// One axis of a separable resize from `from` to `to` samples, edge to edge. For a reduction the
/// kernel is widened, so that nothing aliases. Weights depend on absolute positions alone.
class Resampler {
public:
    /// SharpCubic is the cubic kernel with a slope of -0.75, CatmullRom with one of -0.5.
    enum class Kernel { CatmullRom, SharpCubic, Lanczos3 };

    Resampler(Kernel kernel, int from, int to);

    /// First input index and number of input samples that [first, last] of the output depends on.
    struct Span {
        int first;
        int count;
    };
    Span inputSpan(int first, int last) const;

    /// Weights of one output sample for taps() inputs from firstTap() on.
    int firstTap(int output) const;
    int taps() const { return m_taps; }
    void weights(int output, float *w) const;
    double centre(int output) const { return (output + 0.5) * m_ratio - 0.5; }

private:
    double kernel(double x) const;

    Kernel m_kernel;
    double m_ratio;   ///< input samples per output sample
    double m_stretch; ///< of the kernel, at least 1
    double m_support;
    int m_taps;
};

/// `in` covers the spans of out.area.
void resample(const Resampler &horizontal, const Resampler &vertical, const PlaneView &in,
              const PlaneView &out, Scratch &scratch);
