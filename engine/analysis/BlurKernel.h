#pragma once

#include <vector>

namespace Analysis {

/// What a blur does to a point of light, as far as kinds can be told apart.
struct BlurKernel {
    enum class Kind { Gaussian, Disc, Line };

    Kind kind = Kind::Gaussian;
    double size = 0;  ///< pixels: standard deviation, radius or length
    double angle = 0; ///< of a line, radians, counter-clockwise from the x axis

    /// Where on its profile a frequency lies, in cycles per pixel, y downwards.
    double along(double x, double y) const;
};

/// The share of the power that a kernel lets through, by the frequency along its profile, as a
/// spectrum of short windowed blocks shows it: with its zeros filled up a little.
class BlurProfile {
public:
    explicit BlurProfile(const BlurKernel &kernel);
    double at(double frequency) const;

private:
    std::vector<double> m_shares;
};

} // namespace Analysis
