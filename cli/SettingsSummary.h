#pragma once

#include "cli/BatchOptions.h"

class QSettings;

/// What a batch run is about to do, as the text printed before its first file.
QString settingsSummary(const QSettings &settings, const BatchOptions &options, qsizetype fileCount);
