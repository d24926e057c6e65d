#pragma once

#include <QStringList>

#include <stop_token>

/// What a list of words from outside (arguments, dropped or merged paths) amounts to.
struct GatheredInput {
    QStringList images;  ///< absolute paths of files whose extension can be opened, no duplicates
    QStringList invalid; ///< what exists but can't be opened, or does not exist
};

/// Folders are walked whole; their unsupported files are passed over in silence, since a folder of
/// photographs often holds others. Words that begin with "-" are options, unless such a file exists.
/// At most MaxGatheredFiles images are taken. Callable from any thread; what was found stands when it is
/// stopped.
GatheredInput gatherInput(const QStringList &words, const std::stop_token &stop = {});

/// Whether gathering has to walk folders, which takes its time.
bool namesFolder(const QStringList &words);

inline constexpr qsizetype MaxGatheredFiles = 100000;
