#pragma once

#include <algorithm>

/// What the strengths of the models stand for, and the way back from a measurement to a
/// strength. All are linear: strength 0 does nothing, strength 1 assumes the maximum. The shipped
/// definition files carry the same maxima; a test holds the two together.
namespace StrengthScale {

/// Noise of samples in 0..1, as the standard deviation of white noise per colour channel; blur
/// widths in pixels of the stage's input.
struct Linear {
    double maximum;

    constexpr double measure(double strength) const { return std::clamp(strength, 0.0, 1.0) * maximum; }
    constexpr double strength(double measured) const { return std::clamp(measured / maximum, 0.0, 1.0); }
};

/// Denoise, standard deviation of the noise that is taken away.
inline constexpr Linear denoiseNormal{50.0 / 255};   ///< "Low Light Beta"
inline constexpr Linear denoiseStrong{75.0 / 255};   ///< "Severe Noise Beta"
inline constexpr Linear denoiseExtreme{100.0 / 255}; ///< "Severe Noise"

/// RAW, the same on developed data.
inline constexpr Linear rawNative{40.0 / 255};   ///< "RAW Native", "Linear RAW"
inline constexpr Linear rawStandard{75.0 / 255}; ///< "RAW Standard"
/// Colour filters and matrices leave developed noise stronger in its colours than white noise of the same
/// brightness: its root mean square over the channels, which these networks are told, is larger by this.
inline constexpr double sensorNative = 1.25;
inline constexpr double sensorStandard = 1.08; ///< strong noise, part of which black cuts off

/// Sharpen, width of the blur that is taken back: the standard deviation of a Gaussian, the radius
/// of a defocus disk, the length of a straight motion.
inline constexpr Linear sharpenStandard{2.0}; ///< "Sharpen Standard v2"
inline constexpr Linear sharpenStrong{3.0};   ///< "Sharpen Strong"
inline constexpr Linear sharpenLens{8.0};     ///< "Sharpen Standard", isLens true
inline constexpr Linear sharpenMotion{9.0};   ///< "Sharpen Standard", isLens false

} // namespace StrengthScale
