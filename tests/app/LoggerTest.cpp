#include "app/TLogger.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

#include <thread>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace {

// Gives the path of the log.
QString start(const QString &directory, int level, bool plain) {
    TLogger::initialize(directory, level, plain);
    qInstallMessageHandler(&TLogger::handleMessage);
    return TLogger::currentLogFile();
}

QByteArray contents(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Standard error as a pipe whose reader may be slow.
class ErrorPipe {
public:
    ErrorPipe()
        : m_saved(dup(STDERR_FILENO)) {
        EXPECT_EQ(pipe(m_ends), 0);
        dup2(m_ends[1], STDERR_FILENO);
        close(m_ends[1]);
    }
    ~ErrorPipe() { close(m_ends[0]); }
    Q_DISABLE_COPY_MOVE(ErrorPipe)
    void restore() const {
        dup2(m_saved, STDERR_FILENO);
        close(m_saved);
    }
    // Reads until every writer has gone.
    QByteArray drain() const {
        QByteArray all;
        char buffer[4096];
        for (ssize_t n = 0; (n = read(m_ends[0], buffer, sizeof buffer)) > 0;)
            all.append(buffer, n);
        return all;
    }

private:
    int m_saved;
    int m_ends[2] = {-1, -1};
};

// What a killed program leaves behind, and what whoever follows the log sees.
TEST(Logger, LinesAreInTheFileWithoutAnotherCall) {
    const QTemporaryDir folder;
    const QString path = start(folder.path(), 4, true);
    for (const char *text : {"first of it", "second of it"}) {
        qInfo("%s", text);
        const QDeadlineTimer deadline(60000);
        while (!contents(path).contains(text) && !deadline.hasExpired())
            QThread::msleep(1);
        EXPECT_TRUE(contents(path).contains(text)) << text;
    }
    TLogger::shutdown();
}

TEST(Logger, FileTakesInfoAndAboveWhateverTheConsoleWants) {
    for (const int consoleLevel : {0, 1, 4}) {
        SCOPED_TRACE(consoleLevel);
        const QTemporaryDir folder;
        testing::internal::CaptureStdout();
        const QString path = start(folder.filePath(u"new/Logs"_s), consoleLevel, false);
        qDebug("a detail");
        qInfo("first %s", "\xc3\xbc");
        qWarning("QML PropertyTracker (x): flood");
        qWarning("at QML QQuickImage: Error decoding: y");
        qCritical("second");
        TLogger::shutdown();
        const QByteArray console = testing::internal::GetCapturedStdout().c_str();

        EXPECT_TRUE(TLogger::currentLogFile().isEmpty());
        const QByteArray file = contents(path);
        EXPECT_EQ(file.count('\n'), 2) << file.constData();
        EXPECT_TRUE(file.contains("] Info | first \xc3\xbc "));
        EXPECT_TRUE(file.contains(", 0 ms] ") || consoleLevel > 0)
            << "the thread's first message has no past";
        EXPECT_LT(file.indexOf("first"), file.indexOf("second"));
        EXPECT_EQ(console.contains("first"), consoleLevel <= 1);
        EXPECT_EQ(console.contains("\033[31mError\033[0m | second"), consoleLevel <= 3);
        EXPECT_FALSE(console.contains("a detail"));
    }
}

TEST(Logger, LinesOfEachThreadStayInOrder) {
    constexpr int threads = 4, lines = 500;
    const QTemporaryDir folder;
    const QString path = start(folder.path(), 4, true);
    std::vector<std::thread> writers;
    for (int t = 0; t < threads; ++t) {
        writers.emplace_back([t] {
            for (int i = 0; i < lines; ++i)
                qInfo("@%d:%d;", t, i);
        });
    }
    for (std::thread &writer : writers)
        writer.join();
    TLogger::shutdown();
    int next[threads] = {};
    const QList<QByteArray> written = contents(path).split('@');
    for (const QByteArray &line : written.mid(1)) {
        const int thread = line.first(1).toInt();
        EXPECT_EQ(line.sliced(2, line.indexOf(';') - 2).toInt(), next[thread]++);
    }
    for (const int count : next)
        EXPECT_EQ(count, lines);
}

TEST(Logger, StalledConsoleHoldsNobodyAndLosesNothing) {
    constexpr int lines = 3000; // several times what a pipe holds
    const QTemporaryDir folder;
    ErrorPipe pipe;
    const QString path = start(folder.path(), 1, true);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < lines; ++i)
        qInfo("line %d of a console that nobody reads, long enough to fill the pipe soon", i);
    EXPECT_LT(timer.elapsed(), 2000);

    QByteArray console;
    std::thread reader([&] { console = pipe.drain(); });
    TLogger::shutdown();
    pipe.restore();
    reader.join();
    EXPECT_EQ(console.count("Info | line "), lines);
    EXPECT_EQ(contents(path).count("Info | line "), lines);
}

TEST(Logger, MessagesDuringAReplacementDoNoHarm) {
    const QTemporaryDir folder;
    testing::internal::CaptureStderr(); // what Qt's own handler says in between
    std::jthread chatter([](const std::stop_token &stop) {
        while (!stop.stop_requested()) {
            qWarning("QML PropertyTracker: passes the handler, written nowhere");
            std::this_thread::yield();
        }
    });
    for (int i = 0; i < 20; ++i) {
        start(folder.path(), 4, true);
        TLogger::shutdown();
    }
    chatter.request_stop();
    chatter.join();
    testing::internal::GetCapturedStderr();
}

TEST(Logger, UnwritableFolderLeavesTheConsole) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QFile(folder.filePath(u"file"_s)).open(QIODevice::WriteOnly));
    testing::internal::CaptureStderr();
    EXPECT_TRUE(start(folder.filePath(u"file/Logs"_s), 2, true).isEmpty());
    qWarning("still told");
    TLogger::shutdown();
    EXPECT_NE(testing::internal::GetCapturedStderr().find("Warn | still told "), std::string::npos);
}

TEST(LoggerDeathTest, FatalMessageGetsOut) {
    // A fixed name, because the dying process runs this test from its beginning.
    const QString folder = QDir::tempPath() + u"/orvane-fatal-log-test"_s;
    const auto die = [&] {
        QDir(folder).removeRecursively();
        start(folder, 4, true);
        qInfo("before");
        qFatal("the end");
    };
    EXPECT_DEATH(die(), "Fatal \\| the end");
    const QStringList logs = QDir(folder).entryList({u"*.ovlog"_s}, QDir::Files);
    ASSERT_EQ(logs.size(), 1);
    const QByteArray log = contents(QDir(folder).filePath(logs.first()));
    EXPECT_TRUE(log.contains("Info | before") && log.contains("Fatal | the end")) << log.constData();
    QDir(folder).removeRecursively();
}

} // namespace
