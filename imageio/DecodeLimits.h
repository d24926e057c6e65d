#pragma once

#include "imageio/FileProbe.h"

namespace imageio::limits {

constexpr qint64 MaxSide = 65500;
constexpr qint64 MaxPixels = 500'000'000;
/// Up to here a header is believed whatever the file's size: decoding it costs at most 512 MB.
constexpr qint64 UncheckedPixels = 64'000'000;
/// Profiles, texts and camera data of one file, compressed and expanded.
constexpr qint64 MaxMetadataBytes = 64ll << 20;

/// A sentence when a picture of this size must not be decoded, else empty. `pixelsPerByte` is that
/// of FileFacts.
QString checkSize(qint64 width, qint64 height, qint64 fileSize, double pixelsPerByte);

QString metadataTooLarge();
QString endsTooEarly();
QString damagedHeader(FileKind kind);

} // namespace imageio::limits
