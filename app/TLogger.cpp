#include "app/TLogger.h"

#include "app/LogFiles.h"
#include "app/LogFormat.h"
#include "app/LogQueue.h"
#include "app/TLoggerWorker.h"
#include "system/ElapsedTime.h"

#include <QDebug>
#include <QSemaphore>
#include <QThread>

#include <atomic>
#include <chrono>
#include <optional>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int fileLevel = 1;
constexpr int patienceMs = 5000;

std::unique_ptr<TLogger> owner;
TLogger::ConsoleGuard consoleGuard;

// Threads may log while the logger is being replaced. The handler announces itself before it takes
// the pointer, and the one who replaces it takes the pointer away before waiting for the handlers
// that still use it. A handler never waits, so that wait is short.
std::atomic<TLogger *> current = nullptr;
std::atomic<int> handlersAtWork = 0;

class AtWork {
public:
    AtWork() { ++handlersAtWork; }
    ~AtWork() { --handlersAtWork; }
    Q_DISABLE_COPY_MOVE(AtWork)
};

} // namespace

// The thread with all that it uses.
class TLogger::LogThread : public QThread {
public:
    explicit LogThread(const QString &directory)
        : worker(QDir(directory), false, consoleGuard) {
        setObjectName(u"Log"_s);
    }

    TLoggerWorker worker;
    LogQueue queue;

protected:
    // A program that is killed has lost nothing but what it was writing: whoever reads along, or looks for
    // the cause, has every line. One flush a burst costs next to nothing.
    void run() override {
        queue.run([this] { worker.sync(); });
    }
};

namespace {

// Two messages that would flood the log.
bool isNoise(const QString &text) {
    return text.contains("QML QQuickImage: Error decoding:"_L1) || text.contains("QML PropertyTracker"_L1);
}

QString elapsedSinceLastMessage() {
    thread_local std::optional<Clock::time_point> last;
    const auto now = Clock::now();
    const auto elapsed = now - last.value_or(now);
    last = now;
    return ElapsedTime::toString(std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count());
}

QString currentThreadText() {
    return QString::number(reinterpret_cast<quintptr>(QThread::currentThreadId()), 16);
}

} // namespace

void TLogger::initialize(const QString &directory, int consoleLevel, bool plainConsole) {
    shutdown();
    LogFiles::prune(QDir(directory));
    owner.reset(new TLogger(directory, consoleLevel, plainConsole));
    current = owner.get();
    static std::atomic_flag announced;
    if (!announced.test_and_set())
        qInfo("Logger initialized");
}

void TLogger::setConsoleGuard(ConsoleGuard guard) {
    consoleGuard = std::move(guard);
}

void TLogger::shutdown() {
    owner.reset();
}

QString TLogger::currentLogFile() {
    const AtWork atWork;
    const TLogger *logger = current;
    return logger ? logger->m_thread->worker.filePath() : QString();
}

TLogger::TLogger(const QString &directory, int consoleLevel, bool plainConsole)
    : m_plainConsole(plainConsole)
    , m_consoleLevel(consoleLevel)
    , m_thread(std::make_unique<LogThread>(directory)) {
    // Direct, on the thread that logs: all it does there is to hand the line over.
    const auto handOver = [this](void (TLoggerWorker::*write)(const QString &)) {
        return [thread = m_thread.get(), write](const QString &msg) {
            thread->queue.push([worker = &thread->worker, write, msg] { (worker->*write)(msg); });
        };
    };
    connect(this, &TLogger::writeFile, this, handOver(&TLoggerWorker::writeFile), Qt::DirectConnection);
    connect(this, &TLogger::writeConsoleOutput, this, handOver(&TLoggerWorker::writeConsoleOutput),
            Qt::DirectConnection);
    connect(this, &TLogger::writeConsoleError, this, handOver(&TLoggerWorker::writeConsoleError),
            Qt::DirectConnection);
    m_thread->start(QThread::LowestPriority);
}

TLogger::~TLogger() {
    qInstallMessageHandler(nullptr);
    current = nullptr;
    while (handlersAtWork > 0)
        std::this_thread::yield();
    m_thread->queue.close();
    if (m_thread->wait(patienceMs))
        return;
    m_thread->terminate();
    if (!m_thread->wait(patienceMs))
        m_thread.release(); // stuck inside the system: what it still uses must outlive this object
}

void TLogger::handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    const AtWork atWork;
    if (TLogger *logger = current) {
        logger->log(type, context, text);
        return;
    }
    static std::atomic_flag complained;
    if (!complained.test_and_set())
        qCritical("Must call TLogger::initialize before logging");
}

void TLogger::log(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    if (isNoise(text))
        return;
    LogFormat::Line line{.time = QDateTime::currentDateTime(),
                         .elapsed = {},
                         .thread = currentThreadText(),
                         .type = type,
                         .level = LogFormat::levelName(type, fileLevel),
                         .text = text,
                         .context = LogFormat::contextText(context)};
    if (line.level.isEmpty())
        return;
    line.elapsed = elapsedSinceLastMessage();
    Q_EMIT writeFile(LogFormat::fileLine(line));

    line.level = LogFormat::levelName(type, m_consoleLevel);
    if (!line.level.isEmpty()) {
        if (m_plainConsole)
            Q_EMIT writeConsoleError(LogFormat::plainLine(line));
        else
            Q_EMIT writeConsoleOutput(LogFormat::colouredLine(line));
    }
    if (type == QtFatalMsg)
        waitUntilWritten();
}

void TLogger::waitUntilWritten() {
    if (QThread::currentThread() == m_thread.get())
        return;
    // Shared, because the worker may come to it after this thread has given up waiting.
    auto written = std::make_shared<QSemaphore>();
    m_thread->queue.push([worker = &m_thread->worker, written] {
        worker->sync();
        written->release();
    });
    written->tryAcquire(1, patienceMs);
}
