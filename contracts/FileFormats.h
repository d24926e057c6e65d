#pragma once

#include <QStringList>

/// File name extensions, lower case, without the dot.
struct FileFormats {
    QStringList readable; ///< all that can be opened, RAW included
    QStringList raw;      ///< camera files
    QStringList writable;
};

/// The lists in use by everything that asks about extensions. The program replaces the built-in
/// lists at start with what its image library supports; read and write on the main thread only.
const FileFormats &fileFormats();
void setFileFormats(const FileFormats &formats);
