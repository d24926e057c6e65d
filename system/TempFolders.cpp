#include "system/TempFolders.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace {

constexpr auto OwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

QString shortHash(const QString &text) {
    return QString::fromLatin1(
        QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex().left(32));
}

} // namespace

QString TempFolders::root() {
    return QDir::tempPath() + QStringLiteral("/orvane-") + shortHash(QDir::homePath()).left(12);
}

QString TempFolders::thumbnails() {
    return root() + QStringLiteral("/thumbnails");
}

// The system's temporary folder is open to everyone: a root that is a link, or whose rights can't be
// set because somebody else owns it, is not ours.
bool TempFolders::make(const QString &folder) {
    QDir().mkdir(root(), OwnerOnly);
    return !QFileInfo(root()).isSymLink() && QFile::setPermissions(root(), OwnerOnly) &&
           QDir().mkpath(folder);
}

QString TempFolders::thumbnailOf(const QString &imagePath) {
    const QFileInfo file(imagePath);
    const QString identity = file.absoluteFilePath() + u'|' + QString::number(file.size()) + u'|' +
                             QString::number(file.lastModified().toMSecsSinceEpoch());
    return thumbnails() + u'/' + shortHash(identity) + QStringLiteral(".jpg");
}

QString TempFolders::installerOf(const QString &url) {
    const QUrl address(url);
    if (address.isLocalFile())
        return address.toLocalFile();
    return root() + QStringLiteral("/installers/") + shortHash(url).left(12) + u'-' + address.fileName();
}
