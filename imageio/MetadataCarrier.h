#pragma once

#include "imageio/EncodeOptions.h"

#include <QByteArray>
#include <QSize>

namespace imageio {

/// What differs in the written picture from the one the metadata was made for.
struct MetadataCorrections {
    QSize size;
    double resolution = 0; ///< 0 keeps what the source says
    int resolutionUnit = 2;
    QByteArray icc; ///< of the written picture
    bool sourceIsRaw = false;
};

/// Copies EXIF with maker notes, XMP and IPTC from `source` (may be missing) into the written file
/// `target`, then corrects orientation, size, resolution, software and colour space and drops what
/// shows or describes the old pixels. A sentence when the target could not be written, else empty;
/// a source that can't be read is only logged.
QString carryMetadata(const QString &source, const QString &target, OutputKind kind,
                      const MetadataCorrections &corrections);

} // namespace imageio
