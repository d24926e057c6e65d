#pragma once

#include "contracts/ImageFileBackend.h"

namespace imageio {

/// Crops, encodes, carries metadata, checks and puts the file in place. See ImageFileBackend::write.
WriteResult writePicture(const WriteRequest &request, const RunControl &control);

/// "resolution" and "resolutionUnit" of an image map; the former 0 when absent.
struct Resolution {
    double value = 0;
    int unit = 2;
};
Resolution resolutionOf(const QVariantMap &imageData);

} // namespace imageio
