#pragma once

#include "cli/BatchOptions.h"

#include <QVariantMap>

/// The name in messages, the summary and events.
QString formatName(OutputFormat format);

/// "none", "zip" or "lzw", as the image library spells it.
QString tiffCompressionName(TiffCompression compression);

/// The image library's attributes for a file of this format. For TIFF and DNG it first repairs
/// settings that can't be written, in `options` for the rest of the run, and says so.
QVariantMap writerOptions(OutputFormat format, BatchOptions &options);
