#pragma once

#include "contracts/ImageData.h"

#include <QVariantMap>

namespace imageio {

/// The picture that is to be saved: "cropRect" (pixels of the full output picture) turned by
/// "rotation" (radians, counter-clockwise on the screen, about its centre) out of `image`, which
/// covers either the full output picture or the upright box around the turned rectangle. Answers
/// `image` itself when there is nothing to cut or turn, null when memory is short.
ImageRef cropRotate(const ImageRef &image, const QVariantMap &imageData);

} // namespace imageio
