#include "engine/kernels/Convolution.h"

#include "engine/kernels/Simd.h"

#include <cmath>

namespace {

using Simd::Loose;

struct RowArgs {
    const float *in;
    float *out;
    int width;
    const std::ptrdiff_t *offsets;
    const float *weights;
    std::size_t count;
};

ORVANE_INLINE void convolveRowBody(const RowArgs &args) {
    for (int x = 0; x < args.width; x += 32) {
        Simd::Floats sum[4] = {};
        for (std::size_t t = 0; t < args.count; ++t) {
            const float *in = args.in + x + args.offsets[t];
            for (int j = 0; j < 4; ++j)
                sum[j] += args.weights[t] * *reinterpret_cast<const Loose *>(in + 8 * j);
        }
        for (int j = 0; j < 4; ++j)
            *reinterpret_cast<Loose *>(args.out + x + 8 * j) = sum[j];
    }
}
ORVANE_KERNEL(convolveRow, RowArgs)

} // namespace

float ConvolutionKernel::noiseGain() const {
    double sum = 0;
    for (const Tap &tap : taps)
        sum += double(tap.weight) * double(tap.weight);
    return float(std::sqrt(sum));
}

void convolve(const ConvolutionKernel &kernel, const PlaneView &in, const PlaneView &out,
              const std::stop_token &stop) {
    std::vector<std::ptrdiff_t> offsets;
    std::vector<float> weights;
    for (const ConvolutionKernel::Tap &tap : kernel.taps) {
        offsets.push_back(tap.dy * in.stride + tap.dx);
        weights.push_back(tap.weight);
    }
    for (int y = out.area.y; y < Region::bottom(out.area) && !stop.stop_requested(); ++y)
        convolveRow({in.at(out.area.x, y), out.row(y), out.area.width, offsets.data(), weights.data(),
                     weights.size()});
}
