#pragma once

#include "cli/BatchOptions.h"

/// The file format that a picture is written in, and its extension without the dot.
struct OutputKind {
    OutputFormat format = OutputFormat::Preserve;
    QString extension;
};

/// What `inputPath` turns into under the requested format. An extension that already says so stays
/// as it is written. Preserve follows the extension, and camera files become DNG.
OutputKind outputKind(const QString &inputPath, OutputFormat requested);

/// Where the pictures of one run go. No two of them get one name, whatever the options: a picture that
/// still waits to be written can't be seen on the disk, and the next one must not take its place.
class OutputNaming {
public:
    /// The files of this run. Only its own result may replace one.
    void setInputs(const QStringList &inputs);

    /// Notes a name that is in use without having been given out here.
    void reserve(const QString &path);

    /// The path for `inputPath` with the extension, or that of a TIFF where files with this extension can
    /// only be read. Makes the folders above the deepest one where they are missing. A taken name gets
    /// "-1", "-2", ...; under options.overwrite only one that this run uses is taken, but a TIFF that
    /// nobody asked for and a numbered name never replace a file.
    QString pathFor(const QString &inputPath, const QString &extension, const BatchOptions &options);

private:
    QSet<QString> m_given;
    QSet<QString> m_inputs;
};
