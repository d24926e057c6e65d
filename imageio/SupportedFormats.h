#pragma once

#include "contracts/FileFormats.h"
#include "imageio/FileProbe.h"

namespace imageio {

/// What the image library and the RAW library in use can open, and what PixelEncoder can write.
const FileFormats &supportedFormats();

/// Lower case, those whose makers the RAW library knows.
const QStringList &rawExtensions();

/// By a lower-case extension without the dot.
FileKind kindOfExtension(const QString &extension);

} // namespace imageio
