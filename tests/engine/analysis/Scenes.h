#pragma once

#include "contracts/ImageData.h"
#include "engine/analysis/ImageStatistics.h"
#include "engine/analysis/Planes.h"

#include <QStringList>

#include <functional>
#include <memory>

/// Pictures to measure, made here or read from desktop photographs, and ways to spoil them.
namespace Scenes {

using Analysis::Crop;
using Analysis::Plane;

/// Three channels of values from 0 to 1.
using Picture = std::array<Plane, 3>;

Picture painted(int width, int height, const std::function<float(int x, int y, std::size_t channel)> &value);
Picture flat(int width, int height, const std::array<float, 3> &colour);
/// Slopes, discs and bars with sharp edges, a checked and a grainless textured corner, in colour.
Picture still(int width, int height);

/// Leaves of all sizes over one another: has the spectrum of a detailed photograph.
Picture leaves(int width, int height);

/// White noise, independent in the channels; `sigma` on the 8-bit scale.
Picture noisy(const Picture &picture, double sigma);
/// Noise that is correlated like white noise smoothed by `grain` pixels.
Picture grainy(const Picture &picture, double sigma, double grain);
/// Spots of colour some pixels wide, without luma; `sigma` over the three channels together.
Picture blotched(const Picture &picture, double sigma, double width);
Picture blurred(const Picture &picture, double sigma);
/// As by a lens out of focus, every point a disc of this radius.
Picture defocused(const Picture &picture, double radius);
/// Smeared over `length` pixels at `angle` (radians, counter-clockwise).
Picture smeared(const Picture &picture, int length, double angle);
Picture tinted(const Picture &picture, const std::array<float, 3> &gains);
Picture compressed(const Picture &picture, int quality);

std::shared_ptr<ImageData> image(const Picture &picture, SampleType type = SampleType::UInt8,
                                 int channels = 3);

ImageStatistics measured(const Picture &picture);
/// The mean of the three channels, on the 8-bit scale.
double channelNoise(const ImageStatistics &statistics);

/// The photographs of the package mate-backgrounds.
QStringList photographs();
/// Reduced to 0.4, which takes old compression away, and cut to a size that measures quickly.
Picture photograph(const QString &path);

} // namespace Scenes
