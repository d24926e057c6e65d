#include "imageio/LeftoverFiles.h"

#include "imageio/platform/Files.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDirIterator>
#include <QMutex>
#include <QRegularExpression>
#include <QSet>

namespace imageio {

namespace {

QString hostPrefix() {
    static const QString prefix = QStringLiteral(".orvane-%1-").arg(platform::hostId());
    return prefix;
}

/// True once for each folder: what dies from then on is left to the next run, and a large folder is not
/// listed for each picture.
bool isFirstVisit(const QString &folder) {
    static QMutex mutex;
    static QSet<QString> visited;
    const QMutexLocker lock(&mutex);
    const bool first = !visited.contains(folder);
    visited.insert(folder);
    return first;
}

} // namespace

QString temporaryPrefix() {
    return hostPrefix() + QString::number(QCoreApplication::applicationPid()) + u'-';
}

void removeLeftovers(const QString &folder) {
    if (!isFirstVisit(folder))
        return;
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(hostPrefix() + QStringLiteral("([0-9]{1,10})-[A-Za-z0-9]{6,7}")));
    QDirIterator entries(folder, {hostPrefix() + u'*'}, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QRegularExpressionMatch match = pattern.match(entries.fileName());
        if (!match.hasMatch() || platform::processExists(match.captured(1).toLongLong()) ||
            !platform::isOwnFile(path))
            continue;
        platform::removeFile(path);
        qInfo().noquote() << "Removed what a killed process left:" << path;
    }
}

} // namespace imageio
