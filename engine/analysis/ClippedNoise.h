#pragma once

namespace Analysis {

/// Share of the variance of normal noise that is left after its values were cut off at 0 and 1, where
/// `mean` is the mean afterwards and `sigma` the deviation before. The level under the noise is taken to
/// lie in 0..1. Moments of the censored normal distribution.
float keptShare(float mean, float sigma);

} // namespace Analysis
