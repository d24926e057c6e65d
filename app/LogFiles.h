#pragma once

#include <QDateTime>
#include <QDir>
#include <QFile>

/// The log files of a folder: which stay and what the next is called.
namespace LogFiles {

constexpr int maxKept = 10;

/// Deletes the oldest "*.ovlog" files until ten are left. One that can't be deleted is logged and
/// counts as handled.
void prune(const QDir &directory);

/// Opens a new file in the folder, named by the local time; where the name is taken, "-1", "-2"
/// and so on go before the extension. Two processes never get the same file. On failure the file
/// stays closed.
void openNew(QFile &file, const QDir &directory, const QDateTime &time);

} // namespace LogFiles
