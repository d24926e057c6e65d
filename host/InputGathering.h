#pragma once

#include <QStringList>

#include <stop_token>

/// What is found under a list of entries from outside: arguments, dropped or merged paths.
struct GatheredInput {
    QStringList images;  ///< absolute paths of files whose extension can be opened, no duplicates
    QStringList invalid; ///< what exists but can't be opened, or does not exist
};

/// Folders are walked whole; their unsupported files are passed over in silence, since a folder of
/// photographs often holds others. Entries that begin with "-" are options, unless such a file exists.
/// At most MaxGatheredFiles images are taken. Callable from any thread; what was found is kept when it is
/// stopped.
GatheredInput gatherInput(const QStringList &entries, const std::stop_token &stop = {});

/// Whether gathering has to walk folders, which takes its time.
bool namesFolder(const QStringList &entries);

inline constexpr qsizetype MaxGatheredFiles = 100000;
