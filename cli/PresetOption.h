#pragma once

#include "cli/BatchOptions.h"

/// Reads the preset that `options.presetName` names, if any: a file when the name ends in ".json", otherwise
/// a preset of that directory. False, after a message on standard error, when it can't be had.
bool readPreset(const QString &directory, BatchOptions &options);
