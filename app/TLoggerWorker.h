#pragma once

#include <QDir>
#include <QFile>
#include <QObject>

#include <functional>
#include <memory>

/// Owns the log file and does every write, on the logger's thread. A file that can't be opened
/// leaves it writing to the console alone.
class TLoggerWorker : public QObject {
    Q_OBJECT
public:
    /// `consoleGuard` may be empty; what it gives is held during each write to the console.
    TLoggerWorker(const QDir &logDirectory, bool flushOnWrite,
                  std::function<std::shared_ptr<void>()> consoleGuard = {});

    /// Empty when the file couldn't be opened. Fixed at construction.
    QString filePath() const { return m_filePath; }

public Q_SLOTS:
    void writeFile(const QString &msg);
    void writeConsoleOutput(const QString &msg);
    void writeConsoleError(const QString &msg);
    /// Hands everything written so far to the system.
    void sync();

private:
    void writeConsole(const QString &msg, FILE *stream);

    QString m_filePath;
    QFile m_file;
    QDir m_logDirectory;
    bool m_flushOnWrite;
    std::function<std::shared_ptr<void>()> m_consoleGuard;
};
