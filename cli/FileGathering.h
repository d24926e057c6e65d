#pragma once

#include "cli/BatchOptions.h"

/// Reads a whole command line (without the program's name) into `options` and gives the input
/// files. Empty after a bad option, which also clears options.validArguments, and after a path
/// that does not exist; under --keep-going such a path is noted in options.missingPaths instead.
QStringList gatherFiles(QStringList args, const QMap<QString, QString> &categories, BatchOptions &options);
