#pragma once

#include <QObject>
#include <QStringList>
#include <QtQmlIntegration/qqmlintegration.h>

/// The state of this session that outlives a crash or a restart: which files are open.
class AppState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Cannot create AppState from QML")
    Q_PROPERTY(bool isExporting READ isExporting WRITE setIsExporting NOTIFY isExportingChanged)
    Q_PROPERTY(QStringList openFiles MEMBER m_openFiles)

public:
    AppState(const QString &logDirectory, const QString &fileName, QObject *parent = nullptr);

    bool isExporting() const { return m_isExporting; }
    void setIsExporting(bool exporting);

    /// Replaces the session list by `openFiles`: UTF-8, one path a line, in order. A failure is logged.
    Q_INVOKABLE
    void saveFileList();

Q_SIGNALS:
    void isExportingChanged();

private:
    bool m_isExporting = false;
    QStringList m_openFiles;
    QString m_logDirectory;
    QString m_fileName;
};
