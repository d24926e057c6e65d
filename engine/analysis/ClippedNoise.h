#pragma once

namespace Analysis {

/// Standard deviation that normal noise had before its values were cut off at 0 and 1, from the
/// mean and the standard deviation measured afterwards. The level under the noise is taken to lie
/// in 0..1. Moments of the censored normal distribution.
float unclippedDeviation(float mean, float deviation);

} // namespace Analysis
