#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>

/// What saving and reading files needs from the operating system beyond what Qt offers. A port adds
/// a file of its own; nothing else in this room calls the system.
namespace platform {

/// Why the system refused. `code` is its own number, for those that have no name here.
struct Refusal {
    enum Reason {
        None,
        DiskFull,
        QuotaUsedUp,
        FileTooLarge,
        ReadOnlyDisk,
        PermissionDenied,
        FolderMissing,
        FileInFolderPath,
        NameOfFolder,
        NameTooLong,
        LinkLoop,
        InputOutput,
        Other
    };
    Reason reason = None;
    int code = 0;
    explicit operator bool() const { return reason != None; }
};

/// Makes a folder with all those above it.
Refusal makeFolders(const QString &folder);

/// Makes an empty file in `folder` whose name begins with `prefix`, with the permissions of `like`, or
/// where that doesn't exist those that a new file gets. `path` is its path.
Refusal createTemporary(const QString &folder, const QString &prefix, const QString &like, QString &path);

/// Appends zeros until the system refuses, 1 MiB at most.
Refusal appendZeros(const QString &path);

/// Flushes `from` to the disk and renames it over `to`, which may exist, so that a crash leaves the old
/// file or the new one.
Refusal replaceFile(const QString &from, const QString &to);

void removeFile(const QString &path);

/// Eight letters and digits that distinguish this host, and on it the range in which process numbers are
/// unique, from others that see the same folder.
QString hostId();

/// False only when this host has no process of this number.
bool processExists(qint64 number);

/// An ordinary file, no link to one, that belongs to the present user.
bool isOwnFile(const QString &path);

/// A file for reading at any place, also by several threads.
class ReadFile {
public:
    explicit ReadFile(const QString &path);
    ~ReadFile();
    ReadFile(const ReadFile &) = delete;
    ReadFile &operator=(const ReadFile &) = delete;

    bool isOpen() const { return m_handle != -1; }
    void close();
    /// The number of bytes read; fewer than asked for at the file's end and after an error.
    std::size_t read(void *to, std::size_t size, qint64 offset) const;

private:
    std::intptr_t m_handle = -1;
};

} // namespace platform
