#pragma once

#include "engine/kernels/Convolution.h"

/// Shapes of blur, by their transfer functions, so that any width has an exact one.
struct BlurShape {
    enum class Kind { Gaussian, Disk, Motion };
    Kind kind = Kind::Gaussian;
    double extent = 0; ///< standard deviation, radius, length; pixels
    double angle = 0;  ///< of a motion, radians counter-clockwise from the x axis (y points down)

    double transfer(double fx, double fy) const; ///< frequencies in cycles per pixel
};

/// The Wiener inverse of a blur as a filter of finite support. Signal power is taken to fall with
/// the square of frequency, as in natural pictures.
/// `noise`: standard deviation of the noise, samples from 0 to 1. `radius`: of the support.
ConvolutionKernel inverseFilter(const BlurShape &blur, double noise, int radius);
