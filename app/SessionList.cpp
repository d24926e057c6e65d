#include "app/SessionList.h"

#include <QDebug>
#include <QFile>

namespace {
constexpr qint64 maxBytes = 16 << 20;
}

QStringList readSessionList(const QString &logDirectory) {
    QFile file(logDirectory + QLatin1Char('/') + sessionListName());
    const bool opened = file.open(QIODevice::ReadOnly | QIODevice::Text | QIODevice::ExistingOnly);
    if (!opened || file.size() > maxBytes) {
        if (opened)
            qWarning("Session file log is larger than %lld bytes.", static_cast<long long>(maxBytes));
        qInfo("Failed to load last session file log. Will not reopen previous session.");
        return {};
    }
    QStringList files;
    while (!file.atEnd())
        files << QString::fromUtf8(file.readLine()).trimmed();
    return files;
}
