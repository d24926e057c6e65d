#include "imageio/platform/Files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QRandomGenerator>
#include <QSysInfo>

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace platform {

namespace {

Refusal refusal(DWORD code) {
    static constexpr std::pair<DWORD, Refusal::Reason> Reasons[] = {
        {ERROR_SUCCESS, Refusal::None},
        {ERROR_DISK_FULL, Refusal::DiskFull},
        {ERROR_HANDLE_DISK_FULL, Refusal::DiskFull},
        {ERROR_DISK_QUOTA_EXCEEDED, Refusal::QuotaUsedUp},
        {ERROR_FILE_TOO_LARGE, Refusal::FileTooLarge},
        {ERROR_WRITE_PROTECT, Refusal::ReadOnlyDisk},
        {ERROR_ACCESS_DENIED, Refusal::PermissionDenied},
        {ERROR_SHARING_VIOLATION, Refusal::PermissionDenied},
        {ERROR_FILE_NOT_FOUND, Refusal::FolderMissing},
        {ERROR_PATH_NOT_FOUND, Refusal::FolderMissing},
        {ERROR_DIRECTORY, Refusal::FileInFolderPath},
        {ERROR_FILENAME_EXCED_RANGE, Refusal::NameTooLong},
        {ERROR_CANT_RESOLVE_FILENAME, Refusal::LinkLoop},
        {ERROR_IO_DEVICE, Refusal::InputOutput},
        {ERROR_CRC, Refusal::InputOutput},
    };
    for (const auto &[number, reason] : Reasons) {
        if (number == code)
            return {reason, int(code)};
    }
    return {Refusal::Other, int(code)};
}

std::wstring native(const QString &path) {
    return QDir::toNativeSeparators(path).toStdWString();
}

HANDLE open(const QString &path, DWORD access, DWORD disposition, DWORD attributes = FILE_ATTRIBUTE_NORMAL) {
    return CreateFileW(native(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, disposition, attributes, nullptr);
}

} // namespace

Refusal makeFolders(const QString &folder) {
    std::error_code code;
    std::filesystem::create_directories(native(folder), code);
    return refusal(DWORD(code.value()));
}

// A new file inherits the folder's permissions; replaceFile keeps those of the file that it replaces.
Refusal createTemporary(const QString &folder, const QString &prefix, const QString &, QString &path) {
    constexpr int Tries = 100;
    for (int i = 0; i < Tries; ++i) {
        path = folder + u'/' + prefix +
               QString::number(QRandomGenerator::system()->generate(), 36).rightJustified(7, u'0');
        const HANDLE file = open(path, GENERIC_WRITE, CREATE_NEW);
        if (file != INVALID_HANDLE_VALUE) {
            CloseHandle(file);
            return {};
        }
        if (const DWORD code = GetLastError(); code != ERROR_FILE_EXISTS) {
            path.clear();
            return refusal(code);
        }
    }
    path.clear();
    return refusal(ERROR_FILE_EXISTS);
}

Refusal appendZeros(const QString &path) {
    const HANDLE file = open(path, FILE_APPEND_DATA, OPEN_EXISTING);
    if (file == INVALID_HANDLE_VALUE)
        return refusal(GetLastError());
    constexpr int Blocks = 16;
    static constexpr char Block[64 * 1024] = {};
    DWORD code = ERROR_SUCCESS;
    for (int i = 0; i < Blocks && code == ERROR_SUCCESS; ++i) {
        DWORD written = 0;
        if (!WriteFile(file, Block, sizeof Block, &written, nullptr))
            code = GetLastError();
    }
    CloseHandle(file);
    return refusal(code);
}

Refusal replaceFile(const QString &from, const QString &to) {
    const HANDLE file = open(from, GENERIC_WRITE, OPEN_EXISTING);
    const bool flushed = file != INVALID_HANDLE_VALUE && FlushFileBuffers(file);
    const DWORD code = flushed ? DWORD(ERROR_SUCCESS) : GetLastError();
    if (file != INVALID_HANDLE_VALUE)
        CloseHandle(file);
    if (!flushed)
        return refusal(code);
    if (ReplaceFileW(native(to).c_str(), native(from).c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                     nullptr, nullptr) ||
        MoveFileExW(native(from).c_str(), native(to).c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return {};
    return refusal(GetLastError());
}

void removeFile(const QString &path) {
    DeleteFileW(native(path).c_str());
}

QString hostId() {
    const QByteArray host = QSysInfo::machineUniqueId() + '\n' + QSysInfo::machineHostName().toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(host, QCryptographicHash::Sha256).toHex().first(8));
}

bool processExists(qint64 number) {
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, DWORD(number));
    if (!process)
        return GetLastError() != ERROR_INVALID_PARAMETER;
    const bool lives = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    CloseHandle(process);
    return lives;
}

// Who owns a file is left to the system's permissions, which decide whether it can be deleted.
bool isOwnFile(const QString &path) {
    const DWORD attributes = GetFileAttributesW(native(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES &&
           !(attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DEVICE));
}

ReadFile::ReadFile(const QString &path)
    : m_handle(std::intptr_t(open(path, GENERIC_READ, OPEN_EXISTING))) {
}

ReadFile::~ReadFile() {
    close();
}

void ReadFile::close() {
    if (isOpen())
        CloseHandle(HANDLE(m_handle));
    m_handle = -1;
}

std::size_t ReadFile::read(void *to, std::size_t size, qint64 offset) const {
    constexpr std::size_t LargestRead = 1u << 30;
    std::size_t done = 0;
    while (done < size) {
        OVERLAPPED place = {};
        place.Offset = DWORD(quint64(offset) + done);
        place.OffsetHigh = DWORD((quint64(offset) + done) >> 32);
        DWORD count = 0;
        const auto part = DWORD(std::min(size - done, LargestRead));
        if (!::ReadFile(HANDLE(m_handle), static_cast<char *>(to) + done, part, &count, &place) || count == 0)
            break;
        done += count;
    }
    return done;
}

} // namespace platform
