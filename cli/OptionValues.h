#pragma once

#include "cli/BatchOptions.h"

/// Readers for the values of single options. Each stores the value and returns whether it is valid;
/// an invalid one has been reported on standard error.
namespace optionValues {

bool outputFolder(const QString &value, BatchOptions &options);
bool format(const QString &value, BatchOptions &options);
bool jpegQuality(const QString &value, BatchOptions &options);
bool pngCompression(const QString &value, BatchOptions &options);
bool bitDepth(const QString &value, BatchOptions &options);
bool tiffCompression(const QString &value, BatchOptions &options);
bool presetName(const QString &value, BatchOptions &options);

} // namespace optionValues
