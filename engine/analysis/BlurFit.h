#pragma once

#include "engine/analysis/BlurKernel.h"
#include "engine/analysis/PowerSpectrum.h"

namespace Analysis {

/// How well a photograph's spectrum is explained by a kernel: what the scene looks like without it
/// falls with a power of the frequency, a little differently in each direction, and the sensor adds
/// noise that is the same everywhere.
class BlurFit {
public:
    /// `noise` is the deviation of white noise in the picture.
    BlurFit(const PowerSpectrum &spectrum, double noise);

    /// Mean squared error of the logarithm of the power, outliers counting less, and what is unusual
    /// about the scene that it takes. A quick look leaves the highest frequencies out.
    double errorOf(const BlurKernel &kernel, bool quick = false) const;

private:
    static constexpr std::size_t Terms = 8;

    struct Bin {
        double x, y;   ///< frequency
        double level;  ///< logarithm of the power
        double weight; ///< neighbours say the same where they are many
        std::array<double, Terms> terms;
    };
    using Terms8 = std::array<double, Terms>;

    double evaluate(const Terms8 &scene, const std::vector<double> &shares, Terms8 *step) const;
    Terms8 guess(const std::vector<double> &shares) const;

    double m_noise;
    std::vector<Bin> m_bins; ///< from the lowest frequency to the highest
    std::size_t m_quick = 0; ///< as many of them are looked at quickly
    double m_weights = 0;
};

} // namespace Analysis
