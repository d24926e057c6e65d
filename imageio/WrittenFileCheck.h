#pragma once

#include "imageio/EncodeOptions.h"

namespace imageio {

/// Reads a file just written back and compares size, depth, profile and orientation, and for
/// lossless formats sampled rows, with what was to be written. A sentence when they differ.
QString checkWrittenFile(const QString &path, const ImageData &image, const EncodePlan &plan);

} // namespace imageio
