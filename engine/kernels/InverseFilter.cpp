#include "engine/kernels/InverseFilter.h"

#include <array>
#include <cmath>
#include <memory>
#include <numbers>

namespace {

constexpr int Grid = 128; ///< frequencies per axis
constexpr double Pi = std::numbers::pi;

/// Noise to signal at a frequency of 1 cycle per pixel that is assumed in the cleanest picture.
constexpr double LeastRatio = 0.012;
/// Typical amplitude of detail at that frequency, samples from 0 to 1.
constexpr double DetailAmplitude = 0.06;

using Response = std::array<std::array<double, Grid>, Grid>;

std::unique_ptr<Response> wienerResponse(const BlurShape &blur, double noise) {
    auto response = std::make_unique<Response>();
    const double ratio = LeastRatio + (noise / DetailAmplitude) * (noise / DetailAmplitude);
    for (int v = 0; v < Grid; ++v) {
        for (int u = 0; u < Grid; ++u) {
            const double fx = double(u < Grid / 2 ? u : u - Grid) / Grid;
            const double fy = double(v < Grid / 2 ? v : v - Grid) / Grid;
            const double h = blur.transfer(fx, fy);
            const double k = ratio * 4 * (fx * fx + fy * fy);
            // Held so that no blur gives no change however much noise there is.
            const double inverse = h * (1 + k) / (h * h + k);
            // A disk and a motion turn the phase of some frequencies, which has to be turned back;
            // what a Gaussian leaves too weak to be raised stays as it is.
            const bool raisesOnly = blur.kind == BlurShape::Kind::Gaussian;
            (*response)[std::size_t(v)][std::size_t(u)] = raisesOnly ? std::max(1.0, inverse) : inverse;
        }
    }
    return response;
}

/// Falls from 1 in the middle to 0 just outside the radius.
double window(int dx, int dy, int radius) {
    const double r = std::hypot(dx, dy) / (radius + 1);
    return r >= 1 ? 0 : std::cos(Pi / 2 * r) * std::cos(Pi / 2 * r);
}

} // namespace

double BlurShape::transfer(double fx, double fy) const {
    switch (kind) {
    case Kind::Gaussian:
        return std::exp(-2 * Pi * Pi * extent * extent * (fx * fx + fy * fy));
    case Kind::Disk: {
        const double z = 2 * Pi * extent * std::hypot(fx, fy);
        return z < 1e-6 ? 1 : 2 * std::cyl_bessel_j(1, z) / z;
    }
    case Kind::Motion: {
        const double z = Pi * extent * (fx * std::cos(angle) - fy * std::sin(angle));
        return std::abs(z) < 1e-6 ? 1 : std::sin(z) / z;
    }
    }
    return 1;
}

ConvolutionKernel inverseFilter(const BlurShape &blur, double noise, int radius) {
    ConvolutionKernel kernel;
    if (blur.extent <= 0) {
        kernel.taps.push_back({0, 0, 1.0f});
        return kernel;
    }
    const auto response = wienerResponse(blur, noise);
    std::array<double, Grid> cosine, sine;
    for (int i = 0; i < Grid; ++i) {
        cosine[std::size_t(i)] = std::cos(2 * Pi * i / Grid);
        sine[std::size_t(i)] = std::sin(2 * Pi * i / Grid);
    }
    const auto phase = [](int a, int b) { return std::size_t(((a * b) % Grid + Grid) % Grid); };

    struct Weight {
        int dx, dy;
        double value;
    };
    std::vector<Weight> weights;
    double sum = 0;
    for (int dx = -radius; dx <= radius; ++dx) {
        std::array<double, Grid> real{}, imaginary{};
        for (int v = 0; v < Grid; ++v) {
            for (int u = 0; u < Grid; ++u) {
                real[std::size_t(v)] += (*response)[std::size_t(v)][std::size_t(u)] * cosine[phase(u, dx)];
                imaginary[std::size_t(v)] += (*response)[std::size_t(v)][std::size_t(u)] * sine[phase(u, dx)];
            }
        }
        for (int dy = -radius; dy <= radius; ++dy) {
            double value = 0;
            for (int v = 0; v < Grid; ++v)
                value += real[std::size_t(v)] * cosine[phase(v, dy)] -
                         imaginary[std::size_t(v)] * sine[phase(v, dy)];
            value *= window(dx, dy, radius);
            weights.push_back({dx, dy, value});
            sum += value;
        }
    }
    // Weights too small to be seen are left out.
    const double least = std::abs(sum) * 2e-4;
    double kept = 0;
    for (const Weight &w : weights)
        kept += std::abs(w.value) >= least ? w.value : 0;
    for (const Weight &w : weights)
        if (std::abs(w.value) >= least) {
            kernel.taps.push_back({w.dx, w.dy, float(w.value / kept)});
            kernel.radius = std::max({kernel.radius, std::abs(w.dx), std::abs(w.dy)});
        }
    return kernel;
}
