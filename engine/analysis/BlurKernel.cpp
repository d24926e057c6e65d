#include "engine/analysis/BlurKernel.h"

#include "engine/analysis/PowerSpectrum.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace Analysis {

namespace {

constexpr double Pi = std::numbers::pi;
constexpr double Highest = 0.75; ///< a little beyond the corner of the plane of frequencies
constexpr int StepsPerBin = 8;   ///< of the table, for each frequency of the spectrum
constexpr int Steps = int(Highest * PowerSpectrum::Side * StepsPerBin);
/// Of the window's power next to its middle.
constexpr double Leak = 0.2;

/// Transform of a disc of radius 1 at this angular frequency, 2 J1(z) / z, by Gauss and Chebyshev's
/// rule, which is exact enough up to twice as many radians as it has nodes.
double discTransform(double z) {
    constexpr int Nodes = 40;
    double sum = 0;
    for (int i = 1; i <= Nodes; ++i) {
        const double turn = Pi * i / (Nodes + 1);
        sum += std::sin(turn) * std::sin(turn) * std::cos(z * std::cos(turn));
    }
    return 2 * sum / (Nodes + 1);
}

double amplitude(const BlurKernel &kernel, double frequency) {
    const double z = Pi * kernel.size * frequency;
    switch (kernel.kind) {
    case BlurKernel::Kind::Gaussian:
        return std::exp(-2 * z * z);
    case BlurKernel::Kind::Disc:
        return discTransform(2 * z);
    case BlurKernel::Kind::Line:
        return z < 1e-6 ? 1 : std::sin(z) / z;
    }
    return 1;
}

} // namespace

double BlurKernel::along(double x, double y) const {
    return kind == Kind::Line ? std::abs(x * std::cos(angle) - y * std::sin(angle)) : std::hypot(x, y);
}

BlurProfile::BlurProfile(const BlurKernel &kernel) {
    std::vector<double> exact;
    for (int i = 0; i < Steps + StepsPerBin; ++i) {
        const double value = amplitude(kernel, double(i) / (PowerSpectrum::Side * StepsPerBin));
        exact.push_back(value * value);
    }
    for (int i = 0; i < Steps; ++i)
        m_shares.push_back(
            (1 - 2 * Leak) * exact[std::size_t(i)] +
            Leak * (exact[std::size_t(std::abs(i - StepsPerBin))] + exact[std::size_t(i + StepsPerBin)]));
}

double BlurProfile::at(double frequency) const {
    const auto index = std::size_t(frequency * (PowerSpectrum::Side * StepsPerBin) + 0.5);
    return m_shares[std::min(index, m_shares.size() - 1)];
}

} // namespace Analysis
