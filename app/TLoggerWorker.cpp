#include "app/TLoggerWorker.h"

#include "app/LogFiles.h"
#include "app/platform/System.h"

#include <QDateTime>

#include <cstdio>

TLoggerWorker::TLoggerWorker(const QDir &logDirectory, bool flushOnWrite,
                             std::function<std::shared_ptr<void>()> consoleGuard)
    : m_file(this)
    , m_logDirectory(logDirectory)
    , m_flushOnWrite(flushOnWrite)
    , m_consoleGuard(std::move(consoleGuard)) {
    m_logDirectory.mkpath(m_logDirectory.absolutePath());
    LogFiles::openNew(m_file, m_logDirectory, QDateTime::currentDateTime());
    if (m_file.isOpen())
        m_filePath = m_file.fileName();
}

void TLoggerWorker::writeFile(const QString &msg) {
    if (m_file.isOpen() && m_file.isWritable())
        m_file.write(msg.toUtf8());
    if (m_flushOnWrite)
        sync();
}

void TLoggerWorker::writeConsoleOutput(const QString &msg) {
    writeConsole(msg, stdout);
}

void TLoggerWorker::writeConsoleError(const QString &msg) {
    writeConsole(msg, stderr);
}

void TLoggerWorker::writeConsole(const QString &msg, FILE *stream) {
    if (System::debuggerAttached()) {
        System::writeToDebugger(msg);
    } else {
        const QByteArray line = msg.toUtf8() + '\n';
        const std::shared_ptr<void> held = m_consoleGuard ? m_consoleGuard() : nullptr;
        std::fwrite(line.constData(), 1, std::size_t(line.size()), stream);
    }
    if (m_flushOnWrite)
        sync();
}

void TLoggerWorker::sync() {
    std::fflush(stdout);
    m_file.flush();
}
