#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

/// Whether the crash reporter stays off: the environment variable is non-empty, or else the user has
/// switched usage events off. The setting is not read when the variable decides.
bool isCrashReporterBypassed(const QByteArray &variable, const std::function<bool()> &trackingAllowed);

/// Starts the crash handler that is installed beside the program. Without a handler, or in a build
/// without its client library, that is said in the log and the program goes on.
void startCrashReporter(const QString &logDirectory, const QString &executablePath);
