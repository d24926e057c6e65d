#pragma once

#include "cli/BatchOptions.h"

/// The file format that a picture is written in, and its extension without the dot.
struct OutputKind {
    OutputFormat format = OutputFormat::Preserve;
    QString extension;
};

/// What becomes of `inputPath` under the requested format. An extension that already says so stays
/// as it is written. Preserve follows the extension, and camera files become DNG.
OutputKind outputKind(const QString &inputPath, OutputFormat requested);

/// Where the pictures of one run go. Remembers the names it has given out: a picture that still
/// waits to be written can't be seen on the disk, and the next one must not take its name.
class OutputNaming {
public:
    /// The path for `inputPath` with the extension. Makes the folders above the deepest one where
    /// they are missing. A taken name gets "-1", "-2", ... unless options.overwrite is set.
    QString pathFor(const QString &inputPath, const QString &extension, const BatchOptions &options);

private:
    bool isTaken(const QString &path) const;

    QSet<QString> m_given;
};
