#include "app/AppState.h"

#include <QDebug>
#include <QFile>

AppState::AppState(const QString &logDirectory, const QString &fileName, QObject *parent)
    : QObject(parent)
    , m_logDirectory(logDirectory)
    , m_fileName(fileName) {
}

void AppState::setIsExporting(bool exporting) {
    if (m_isExporting == exporting)
        return;
    m_isExporting = exporting;
    Q_EMIT isExportingChanged();
}

void AppState::saveFileList() {
    QFile file(m_logDirectory + QLatin1Char('/') + m_fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        qInfo("Failed to open session files log. Restart manager behavior will be incorrect.");
        return;
    }
    for (const QString &path : std::as_const(m_openFiles)) {
        file.write(path.toUtf8());
        file.write("\n");
    }
    file.close();
    qInfo("Session files log written.");
}
