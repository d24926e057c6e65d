#pragma once

#include "contracts/RunControl.h"
#include "imageio/EncodeOptions.h"

namespace imageio {

struct Encoded {
    bool cancelled = false;
    QString error;
};

/// Writes the pixels, profile and resolution of a picture to `path`, overwriting it. JPEG, BMP and
/// DNG have no alpha: the picture is laid over white. BMP and DNG carry no profile: the picture is
/// converted.
Encoded encodePixels(const ImageData &image, const EncodePlan &plan, const QString &path,
                     const RunControl &control);

} // namespace imageio
