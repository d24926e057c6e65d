#pragma once

#include <opencv2/core.hpp>

/// A photograph (8 bit, B G R) as a camera would have given it: 16 bit, B G R. Its light falls through an
/// RGGB mosaic, photons and the readout make noise, OpenCV demosaics along edges, and the white balance and
/// sRGB's curve follow. `rms` is the noise in the developed picture, root mean square over pixels and
/// channels in 8-bit levels; how much light that took differs between photographs. With `smear` above 0 the
/// noise is smoothed after demosaicing by a Gaussian of that deviation, in pixels: files that were resampled.
cv::Mat throughSensor(const cv::Mat &clean, double rms, double smear, int seed);
