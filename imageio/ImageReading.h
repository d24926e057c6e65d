#pragma once

#include "contracts/ImageFileBackend.h"
#include "imageio/CameraMetadata.h"
#include "imageio/FileProbe.h"

namespace imageio {

/// A decoded picture, upright. Exactly one of: cancelled, a sentence, an image.
struct Opened {
    bool cancelled = false;
    QString error;
    std::shared_ptr<ImageData> image;
    FileFacts facts;
    CameraMetadata metadata;
    int bits = 8; ///< per channel in the file
};

/// `leastSide` above 0 allows a smaller picture whose longest side is at least that, where the
/// decoder makes one faster.
Opened openPicture(const QString &path, int leastSide, const RunControl &control);

ReadResult readPicture(const ReadRequest &request, const RunControl &control);

QSize pictureSize(const QString &path);

} // namespace imageio
