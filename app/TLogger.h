#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

/// Where the program's messages go: to the log file of this run and to the console, both written
/// on a thread of their own. There is one at a time; everybody else logs through Qt and knows
/// nothing of it.
class TLogger : public QObject {
    Q_OBJECT
public:
    /// Replaces the logger of this process, pruning the folder first. The console gets messages of
    /// at least `consoleLevel` (0 debug to 4 fatal): coloured on standard output, or, with
    /// `plainConsole`, bare on standard error.
    static void initialize(const QString &directory, int consoleLevel, bool plainConsole);

    /// What the console is held with while a message goes there, for a program that draws something
    /// else on the same terminal. Called on the logger's thread; set before initialize().
    using ConsoleGuard = std::function<std::shared_ptr<void>()>;
    static void setConsoleGuard(ConsoleGuard guard);

    /// Destroys the logger, if there is one, after everything logged so far is written. Gives up
    /// after five seconds.
    static void shutdown();

    /// Path of the log file of this run; empty when there is no logger or its file couldn't be made.
    static QString currentLogFile();

    /// The handler for qInstallMessageHandler. Never waits for a file or a console, except that a
    /// fatal message, after which the process ends, is written first.
    static void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text);

    ~TLogger() override;

Q_SIGNALS:
    void writeFile(const QString &msg);
    void writeConsoleOutput(const QString &msg);
    void writeConsoleError(const QString &msg);

private:
    class LogThread;

    TLogger(const QString &directory, int consoleLevel, bool plainConsole);
    void log(QtMsgType type, const QMessageLogContext &context, const QString &text);
    void waitUntilWritten();

    bool m_plainConsole;
    int m_consoleLevel;
    std::unique_ptr<LogThread> m_thread;
};
