#include "imageio/platform/Files.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <limits>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

Refusal refusal(int code) {
    static constexpr std::pair<int, Refusal::Reason> Reasons[] = {
        {0, Refusal::None},
        {ENOSPC, Refusal::DiskFull},
        {EDQUOT, Refusal::QuotaUsedUp},
        {EFBIG, Refusal::FileTooLarge},
        {EROFS, Refusal::ReadOnlyDisk},
        {EACCES, Refusal::PermissionDenied},
        {EPERM, Refusal::PermissionDenied},
        {ENOENT, Refusal::FolderMissing},
        {ENOTDIR, Refusal::FileInFolderPath},
        {EISDIR, Refusal::NameOfFolder},
        {ENAMETOOLONG, Refusal::NameTooLong},
        {ELOOP, Refusal::LinkLoop},
        {EIO, Refusal::InputOutput},
    };
    for (const auto &[number, reason] : Reasons) {
        if (number == code)
            return {reason, code};
    }
    return {Refusal::Other, code};
}

Refusal flush(const QByteArray &path, int flags) {
    const int fd = ::open(path.constData(), flags | O_CLOEXEC);
    if (fd < 0)
        return refusal(errno);
    const int result = ::fsync(fd) == 0 ? 0 : errno;
    ::close(fd);
    // Some file systems can't flush folders; the rename itself has been done.
    return refusal(result == EINVAL || result == EBADF ? 0 : result);
}

mode_t permissionsLike(const QByteArray &path) {
    struct stat old{};
    if (::stat(path.constData(), &old) == 0)
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

Refusal makeFolders(const QString &folder) {
    std::error_code code;
    std::filesystem::create_directories(QFile::encodeName(folder).toStdString(), code);
    return refusal(code.value());
}

Refusal createTemporary(const QString &folder, const QString &prefix, const QString &like, QString &path) {
    QByteArray name = QFile::encodeName(folder + u'/' + prefix + QStringLiteral("XXXXXX"));
    const int fd = ::mkstemp(name.data());
    if (fd < 0)
        return refusal(errno);
    path = QFile::decodeName(name);
    // Not every file system knows permissions; the file is no worse without.
    [[maybe_unused]] const int set = ::fchmod(fd, permissionsLike(QFile::encodeName(like)));
    ::close(fd);
    return {};
}

Refusal appendZeros(const QString &path) {
    const int fd = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_APPEND | O_CLOEXEC);
    if (fd < 0)
        return refusal(errno);
    constexpr int Blocks = 16;
    static constexpr char Block[64 * 1024] = {};
    int code = 0;
    for (int i = 0; i < Blocks && code == 0; ++i) {
        ssize_t written = ::write(fd, Block, sizeof Block);
        if (written >= 0 && written < ssize_t(sizeof Block)) // the next one says why
            written = ::write(fd, Block, sizeof Block);
        code = written < 0 ? errno : 0;
    }
    ::close(fd);
    return refusal(code);
}

Refusal replaceFile(const QString &from, const QString &to) {
    const QByteArray source = QFile::encodeName(from);
    if (const Refusal refused = flush(source, O_RDONLY))
        return refused;
    if (::rename(source.constData(), QFile::encodeName(to).constData()) != 0)
        return refusal(errno);
    return flush(QFile::encodeName(QFileInfo(to).absolutePath()), O_RDONLY | O_DIRECTORY);
}

void removeFile(const QString &path) {
    ::unlink(QFile::encodeName(path).constData());
}

QString hostId() {
    // Containers on one machine count their processes apart; where that is so, the link names another
    // number. Elsewhere there is no such link.
    char space[64] = {};
    [[maybe_unused]] const ssize_t length = ::readlink("/proc/self/ns/pid", space, sizeof space - 1);
    const QByteArray host =
        QSysInfo::machineUniqueId() + '\n' + QSysInfo::machineHostName().toUtf8() + '\n' + space;
    return QString::fromLatin1(QCryptographicHash::hash(host, QCryptographicHash::Sha256).toHex().first(8));
}

bool processExists(qint64 number) {
    return number <= 0 || number > std::numeric_limits<pid_t>::max() || ::kill(pid_t(number), 0) == 0 ||
           errno != ESRCH;
}

bool isOwnFile(const QString &path) {
    struct stat found{};
    return ::lstat(QFile::encodeName(path).constData(), &found) == 0 && S_ISREG(found.st_mode) &&
           found.st_uid == ::geteuid();
}

ReadFile::ReadFile(const QString &path)
    : m_handle(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC)) {
}

ReadFile::~ReadFile() {
    close();
}

void ReadFile::close() {
    if (isOpen())
        ::close(int(m_handle));
    m_handle = -1;
}

std::size_t ReadFile::read(void *to, std::size_t size, qint64 offset) const {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count =
            ::pread(int(m_handle), static_cast<char *>(to) + done, size - done, off_t(offset) + off_t(done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        done += std::size_t(count);
    }
    return done;
}

} // namespace platform
