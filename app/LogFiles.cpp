#include "app/LogFiles.h"

#include <QDebug>

using namespace Qt::StringLiterals;

namespace LogFiles {

void prune(const QDir &directory) {
    const QStringList names = directory.entryList({u"*.ovlog"_s}, QDir::Files, QDir::Time);
    qInfo() << "Checking if log directory should be pruned. Currently have" << names.size() << "log files.";
    if (names.size() <= maxKept) {
        qInfo("Log file count is within bounds");
        return;
    }
    qInfo() << "Number of logs exceeds max number to keep (" << maxKept << "). Cleaning excess logs.";
    for (qsizetype i = names.size() - 1; i >= maxKept; --i) {
        if (!QFile::remove(directory.absoluteFilePath(names.at(i))))
            qWarning().noquote() << "Error deleting log file:" << names.at(i);
    }
}

void openNew(QFile &file, const QDir &directory, const QDateTime &time) {
    const QString base = time.toString(u"yyyy-MM-dd-hh-mm-s"_s);
    QString name = base;
    int suffix = 0;
    do {
        file.setFileName(directory.absoluteFilePath(name + ".ovlog"_L1));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return;
        name = u"%1-%2"_s.arg(base).arg(++suffix);
    } while (file.exists());
}

} // namespace LogFiles
