#pragma once

#include "cli/BatchOptions.h"

/// Reads one option into `options`. `rest` holds the arguments after it; its value and settings
/// are taken from the front. False, after a message on standard error, when it is a bad one.
bool parseOption(const QString &arg, QStringList &rest, const QMap<QString, QString> &categories,
                 BatchOptions &options);

/// Whether the arguments ask for --keep-going, wherever it is, but not as another option's value.
bool hasKeepGoing(const QStringList &args);
