#pragma once

#include "imageio/JpegDecoder.h"

#include <QSize>

namespace imageio {

/// Develops a camera file to 16-bit sRGB with the white balance of the camera, upright. A damaged
/// file is an error; its embedded preview is never taken for the picture. `halfSize` develops a
/// picture of half the sides quickly.
Decoded developRaw(const QString &path, bool halfSize, const RunControl &control);

/// Upright size of the developed picture from the header; empty when it is unknown.
QSize rawSize(const QString &path);

} // namespace imageio
