#pragma once

#include "cli/BatchOptions.h"

class QSettings;

/// What a batch run is about to do, in the words printed before its first file.
QString settingsSummary(const QSettings &settings, const BatchOptions &options, qsizetype fileCount);
