#pragma once

#include "contracts/ImageData.h"

#include <array>
#include <stop_token>

/// What made a picture unsharp, as far as its spectrum shows it.
enum class BlurKind {
    Unknown, ///< nothing, too little of it to tell, or too much noise
    Soft,    ///< details vanish the more the finer they are: what lenses, resizing and air do
    Defocus, ///< details of certain sizes are gone: a lens out of focus
    Motion,  ///< the same in one direction
};

/// What was measured on a picture. All levels are encoded (display-referred) values
/// from 0 to 1, so that a noise of 10 on the 8-bit scale is 10 / 255; lengths are pixels.
/// Computed once per image and handed to every run, so that a preview equals the export.
struct ImageStatistics {
    int width = 0;
    int height = 0;

    /// Standard deviation of the noise per channel, as that of white noise of equal visibility
    /// (for correlated noise: the deviation that the noise has in flat areas).
    std::array<float, 3> noise = {};
    float lumaNoise = 0;   ///< of 0.299 R + 0.587 G + 0.114 B
    float chromaNoise = 0; ///< root mean square of the noise of R - luma and B - luma
    float chromaBlotches =
        0; ///< of colour noise in spots of a few pixels, root mean square of R, G and B less the luma
    float grainSize =
        0; ///< sigma of the Gaussian that would give white noise this correlation; 0 for white noise

    float blur = 0; ///< sigma of the Gaussian whose edges look as wide as the sharpest ones here; 0: no edges
    float softness = 0; ///< sigma of the Gaussian that explains best how fine detail is missing
    BlurKind blurKind = BlurKind::Unknown;
    float defocusRadius = 0; ///< only with BlurKind::Defocus
    float motionLength = 0;  ///< of the smear, only with BlurKind::Motion
    float motionAngle = 0;   ///< its direction, radians in [0, pi), counter-clockwise from the x axis
    float edgeShare = 0;     ///< share of pixels on clear edges; blur is a guess where this is tiny

    float drawing = 0; ///< 0 to 1: how far the picture is a drawing or a screenshot and no photograph

    int jpegQuality = 100; ///< 1 to 100 on the usual scale, as far as traces are left; 100: none
    float blockiness = 0;  ///< mean step across 8 x 8 borders beyond that inside the blocks

    float lumaLow = 0; ///< 0.5 % of the pixels are darker
    float lumaMedian = 0;
    float lumaHigh = 1;    ///< 0.5 % of the pixels are brighter
    float clippedLow = 0;  ///< share of pixels with a channel at 0
    float clippedHigh = 0; ///< share of pixels with a channel at the maximum

    std::array<float, 3> illuminant = {1, 1, 1}; ///< colour of the light, linear RGB, green = 1
    float castConfidence = 0;                    ///< 0 to 1: how far independent guesses of it agree
};

/// Reads a few full-resolution crops and one small copy: well under a second on one core whatever
/// the size. Deterministic. A null image, or a stop request (answered within a few milliseconds),
/// gives a default answer.
ImageStatistics measureImage(const ImageData &image, std::stop_token stop);
