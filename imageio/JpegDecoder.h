#pragma once

#include "contracts/ImageData.h"
#include "contracts/RunControl.h"
#include "imageio/FileProbe.h"

namespace imageio {

/// What a decoder answers. Exactly one of: cancelled, a sentence, an image.
struct Decoded {
    bool cancelled = false;
    QString error;
    std::shared_ptr<ImageData> image;
    double resolution = 0; ///< 0 when the file gives none
    int resolutionUnit = 2;
    int bits = 8; ///< per channel in the file
};

/// Decodes a JPEG, and reports truncated and damaged data where a decoder would otherwise fill in
/// grey. `shrink` 2, 4 or 8 decodes a picture smaller by that factor for little work. `icc` is the
/// embedded profile.
Decoded decodeJpeg(const QString &path, const FileFacts &facts, const QByteArray &icc, int shrink,
                   const RunControl &control);

} // namespace imageio
