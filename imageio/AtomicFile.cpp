#include "imageio/AtomicFile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace imageio {

namespace {

QString reason(int code) {
    switch (code) {
    case ENOSPC:
        return QStringLiteral("The disk is full.");
    case EDQUOT:
        return QStringLiteral("Your disk quota is used up.");
    case EFBIG:
        return QStringLiteral("The file grows over the size that is allowed there.");
    case EROFS:
        return QStringLiteral("The disk can only be read.");
    case EACCES:
    case EPERM:
        return QStringLiteral("Permission to write there is denied.");
    case ENOENT:
        return QStringLiteral("The output folder no longer exists.");
    case ENOTDIR:
        return QStringLiteral("A part of the output folder's path is a file.");
    case EISDIR:
        return QStringLiteral("The output name is that of a folder.");
    case ENAMETOOLONG:
        return QStringLiteral("The output name is too long.");
    case ELOOP:
        return QStringLiteral("The output name is a link that leads to itself.");
    case EIO:
        return QStringLiteral("The disk reports an input/output error.");
    default:
        return QStringLiteral("Writing there failed: %1.").arg(qt_error_string(code));
    }
}

/// Follows links at the end of the path, also those to a file that is still to be made.
QString linkTarget(QString path) {
    for (int hops = 0; hops < 40; ++hops) {
        const QFileInfo info(path);
        if (!info.isSymLink())
            return path;
        path = info.symLinkTarget();
    }
    return {};
}

int syncFile(const QByteArray &path, int flags) {
    const int fd = ::open(path.constData(), flags | O_CLOEXEC);
    if (fd < 0)
        return errno;
    const int result = ::fsync(fd) == 0 ? 0 : errno;
    ::close(fd);
    // Some file systems can't flush folders; the rename itself has been done.
    return result == EINVAL || result == EBADF ? 0 : result;
}

mode_t permissionsFor(const QByteArray &target) {
    struct stat old{};
    if (::stat(target.constData(), &old) == 0)
        return old.st_mode & 07777;
    // There is no call that only reads the mask, and setting it would race with other threads.
    QFile status(QStringLiteral("/proc/self/status"));
    mode_t mask = 022;
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("Umask:"))
                mask = mode_t(line.mid(6).trimmed().toUInt(nullptr, 8));
        }
    }
    return 0666 & ~mask;
}

} // namespace

AtomicFile::~AtomicFile() {
    if (!m_temporary.isEmpty())
        ::unlink(QFile::encodeName(m_temporary).constData());
}

QString AtomicFile::begin(const QString &target) {
    if (target.isEmpty())
        return QStringLiteral("No output file was named.");
    m_target = linkTarget(target);
    if (m_target.isEmpty())
        return reason(ELOOP);
    const QFileInfo info(m_target);
    if (info.isDir())
        return reason(EISDIR);
    if (info.exists() && !info.isFile())
        return QStringLiteral("The output name is that of a device or pipe.");
    if (info.exists() && !info.isWritable())
        return QStringLiteral("The existing output file is write-protected.");
    const QString folder = info.absolutePath();
    std::error_code code;
    std::filesystem::create_directories(QFile::encodeName(folder).toStdString(), code);
    if (code)
        return reason(code.value());
    QByteArray name = QFile::encodeName(folder + QStringLiteral("/.orvane-XXXXXX"));
    const int fd = ::mkstemp(name.data());
    if (fd < 0)
        return reason(errno);
    m_temporary = QFile::decodeName(name);
    if (::fchmod(fd, permissionsFor(QFile::encodeName(m_target))) != 0)
        errno = 0;
    ::close(fd);
    // The name itself is tried before the work, not after it.
    if (QFile::encodeName(info.fileName()).size() > 255)
        return reason(ENAMETOOLONG);
    return {};
}

QString AtomicFile::systemTrouble() const {
    const int fd = ::open(QFile::encodeName(m_temporary).constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
    if (fd < 0)
        return reason(errno);
    // Encoders may have given up well before the limit that they met.
    constexpr int Blocks = 16;
    static constexpr char Block[64 * 1024] = {};
    int code = 0;
    for (int i = 0; i < Blocks && code == 0; ++i) {
        ssize_t written = ::write(fd, Block, sizeof Block);
        if (written >= 0 && written < ssize_t(sizeof Block)) // the next one tells why
            written = ::write(fd, Block, sizeof Block);
        code = written < 0 ? errno : 0;
    }
    ::close(fd);
    return code == 0 ? QString() : reason(code);
}

QString AtomicFile::commit() {
    const QByteArray temporary = QFile::encodeName(m_temporary);
    if (const int code = syncFile(temporary, O_RDONLY))
        return reason(code);
    if (::rename(temporary.constData(), QFile::encodeName(m_target).constData()) != 0)
        return reason(errno);
    m_temporary.clear();
    if (const int code =
            syncFile(QFile::encodeName(QFileInfo(m_target).absolutePath()), O_RDONLY | O_DIRECTORY))
        return reason(code);
    return {};
}

} // namespace imageio
