#include "imageio/AtomicFile.h"

#include "imageio/LeftoverFiles.h"
#include "imageio/Text.h"
#include "imageio/platform/Files.h"

#include <QFile>
#include <QFileInfo>

namespace imageio {

using platform::Refusal;

namespace {

QString sentence(const Refusal &refusal) {
    switch (refusal.reason) {
    case Refusal::None:
        return {};
    case Refusal::DiskFull:
        return Text::tr("The disk is full.");
    case Refusal::QuotaUsedUp:
        return Text::tr("Your disk quota is used up.");
    case Refusal::FileTooLarge:
        return Text::tr("The file grows over the size that is allowed there.");
    case Refusal::ReadOnlyDisk:
        return Text::tr("The disk can only be read.");
    case Refusal::PermissionDenied:
        return Text::tr("Permission to write there is denied.");
    case Refusal::FolderMissing:
        return Text::tr("The output folder no longer exists.");
    case Refusal::FileInFolderPath:
        return Text::tr("A part of the output folder's path is a file.");
    case Refusal::NameOfFolder:
        return Text::tr("The output name is that of a folder.");
    case Refusal::NameTooLong:
        return Text::tr("The output name is too long.");
    case Refusal::LinkLoop:
        return Text::tr("The output name is a link that leads to itself.");
    case Refusal::InputOutput:
        return Text::tr("The disk reports an input/output error.");
    case Refusal::Other:
        break;
    }
    return Text::tr("Writing there failed: %1.").arg(qt_error_string(refusal.code));
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

} // namespace

AtomicFile::~AtomicFile() {
    if (!m_temporary.isEmpty())
        platform::removeFile(m_temporary);
}

QString AtomicFile::begin(const QString &target) {
    if (target.isEmpty())
        return Text::tr("No output file was named.");
    m_target = linkTarget(target);
    if (m_target.isEmpty())
        return sentence({Refusal::LinkLoop});
    const QFileInfo info(m_target);
    if (info.isDir())
        return sentence({Refusal::NameOfFolder});
    if (info.exists() && !info.isFile())
        return Text::tr("The output name is that of a device or pipe.");
    if (info.exists() && !info.isWritable())
        return Text::tr("The existing output file is write-protected.");
    const QString folder = info.absolutePath();
    if (const Refusal refused = platform::makeFolders(folder))
        return sentence(refused);
    removeLeftovers(folder);
    if (const Refusal refused = platform::createTemporary(folder, temporaryPrefix(), m_target, m_temporary))
        return sentence(refused);
    // The name itself is tried before the work, not after it.
    constexpr int LongestName = 255;
    if (QFile::encodeName(info.fileName()).size() > LongestName)
        return sentence({Refusal::NameTooLong});
    return {};
}

QString AtomicFile::systemError() const {
    return sentence(platform::appendZeros(m_temporary));
}

QString AtomicFile::commit() {
    const Refusal refused = platform::replaceFile(m_temporary, m_target);
    if (!refused)
        m_temporary.clear();
    return sentence(refused);
}

} // namespace imageio
