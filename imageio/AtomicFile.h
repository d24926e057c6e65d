#pragma once

#include <QString>

namespace imageio {

/// A file that appears under its name only when it is whole. begin() makes missing folders and an
/// empty temporary file beside the target; the caller fills that; commit() flushes it and renames
/// it over the target. Without commit() the destructor removes the temporary file. An existing
/// target keeps its permissions, and a target that is a symbolic link stays one.
class AtomicFile {
public:
    AtomicFile() = default;
    ~AtomicFile();
    AtomicFile(const AtomicFile &) = delete;
    AtomicFile &operator=(const AtomicFile &) = delete;

    /// Both answer a sentence on failure, else empty.
    QString begin(const QString &target);
    QString commit();

    QString temporaryPath() const { return m_temporary; }

    /// After a failed write: a sentence when the file system refuses more data (disk full, quota,
    /// size limit, folder gone), else empty.
    QString systemError() const;

private:
    QString m_target;
    QString m_temporary;
};

} // namespace imageio
