#pragma once

/// Bounds of an upscale: the smallest factor, and the longest side of the result in pixels. The
/// resolution controls keep within them, and comparing settings forgives what they cut off.
namespace EnhanceLimits {

inline constexpr double ScaleMin = 0.2;
inline constexpr int PixelMax = 32000;

} // namespace EnhanceLimits
