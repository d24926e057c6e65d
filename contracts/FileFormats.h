#pragma once

#include <QStringList>

/// File name extensions, lower case, without the dot.
struct FileFormats {
    QStringList readable; ///< all that can be opened, RAW included
    QStringList raw;      ///< camera files
    QStringList writable;
};
