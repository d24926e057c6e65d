#include "app/SessionList.h"

#include <QDebug>
#include <QFile>
#include <QStringConverter>

namespace {

constexpr qint64 maxBytes = 16 << 20;

/// False, with a warning in the log, for what no run of the program has written.
bool takeText(QFile &file, QString &text) {
    if (file.size() > maxBytes) {
        qWarning("Session file log is larger than %lld bytes.", static_cast<long long>(maxBytes));
        return false;
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    text = decoder(file.readAll());
    if (decoder.hasError() || text.contains(QChar::Null)) {
        qWarning("Session file log is damaged.");
        return false;
    }
    return true;
}

} // namespace

QStringList readSessionList(const QString &logDirectory) {
    QFile file(logDirectory + QLatin1Char('/') + sessionListName());
    QString text;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text | QIODevice::ExistingOnly) ||
        !takeText(file, text)) {
        qInfo("Failed to load last session file log. Will not reopen previous session.");
        return {};
    }
    QStringList files = text.split(u'\n');
    // Each line ends with a line feed, so nothing follows the last one.
    if (files.last().isEmpty())
        files.removeLast();
    for (QString &path : files)
        path = path.trimmed();
    return files;
}
