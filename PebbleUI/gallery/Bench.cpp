#include "Bench.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTextStream>
#include <QThread>

#include <algorithm>
#include <array>
#include <atomic>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 9;
constexpr double highestRatio = 4.0;
constexpr int firstFrameLimitMs = 20000;
constexpr int settleMs = 500;
constexpr int idleMs = 2000;

void runEvents(int ms) {
    const QDeadlineTimer end(ms);
    while (!end.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::msleep(1);
    }
}

// In milliseconds from nothing; negative when no frame came.
struct Times {
    double firstFrame = -1;
    double answering = -1; // the thread of the window is free again, after all the frames of the start
};

// A window with an engine of its own, so that every start pays for its own types and bindings.
class Start {
public:
    explicit Start(const QString &type) {
        QElapsedTimer clock;
        clock.start();
        m_engine.addImportPath(u":/PebbleUI"_s);
        m_engine.loadFromModule("PebbleGallery", type);
        if (m_engine.rootObjects().isEmpty())
            return;
        m_window = qobject_cast<QQuickWindow *>(m_engine.rootObjects().constFirst());
        // Swaps happen on the render thread. The first one's time is read there: this thread may by then be
        // waiting for the next frame, which a second expose of the window asks for. Queued, they are counted
        // here.
        QObject::connect(
            m_window, &QQuickWindow::frameSwapped, m_window,
            [this, clock] {
                qint64 none = 0;
                m_firstSwap.compare_exchange_strong(none, clock.nsecsElapsed());
            },
            Qt::DirectConnection);
        QObject::connect(
            m_window, &QQuickWindow::frameSwapped, m_window, [this] { ++m_frames; }, Qt::QueuedConnection);
        const QDeadlineTimer limit(firstFrameLimitMs);
        while (m_frames == 0 && !limit.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        if (m_frames == 0)
            return;
        m_times.firstFrame = double(m_firstSwap) / 1e6;
        m_times.answering = double(clock.nsecsElapsed()) / 1e6;
    }

    const Times &times() const { return m_times; }

    int framesWithin(int ms) {
        runEvents(settleMs);
        const int before = m_frames;
        runEvents(ms);
        return m_frames - before;
    }

    void setBusy(bool busy) { m_window->setProperty("busy", busy); }

private:
    QQuickWindow *m_window = nullptr;
    int m_frames = 0;
    std::atomic<qint64> m_firstSwap = 0;
    Times m_times;
    QQmlApplicationEngine m_engine; // goes first, and the window with it: it swaps until then
};

double median(std::array<Times, rounds> times, double Times::*part) {
    const auto middle = times.begin() + rounds / 2;
    std::nth_element(times.begin(), middle, times.end(),
                     [part](const Times &a, const Times &b) { return a.*part < b.*part; });
    return *middle.*part;
}

} // namespace

int runBench() {
    QTextStream out(stdout);
    const QString empty = u"BenchEmpty"_s;
    const QString controls = u"BenchControls"_s;

    // The first window of a process also starts the graphics driver: it is thrown away.
    if (Start(empty).times().firstFrame < 0) {
        out << "no window came up\n";
        return 1;
    }
    std::array<Times, rounds> emptyTimes;
    std::array<Times, rounds> controlTimes;
    for (int i = 0; i < rounds; ++i) {
        emptyTimes[i] = Start(empty).times();
        controlTimes[i] = Start(controls).times();
    }
    const auto report = [&](const char *what, double Times::*part) {
        const double emptyTime = median(emptyTimes, part);
        const double controlTime = median(controlTimes, part);
        out << what << ", empty window: " << emptyTime << " ms\n"
            << what << ", 300 controls: " << controlTime << " ms (the first time " << controlTimes[0].*part
            << " ms)\n";
        return emptyTime > 0 ? controlTime / emptyTime : -1;
    };
    const double ratio = report("first frame", &Times::firstFrame);
    out << "ratio: " << ratio << " (at most " << highestRatio << ")\n";
    const double answering = report("answering", &Times::answering);
    out << "ratio: " << answering << '\n';

    Start window(controls);
    const int idle = window.framesWithin(idleMs);
    window.setBusy(true);
    const int spinning = window.framesWithin(idleMs);
    window.setBusy(false);
    const int stopped = window.framesWithin(idleMs);
    out << "frames in 2 s: idle " << idle << ", with a spinner " << spinning << ", spinner hidden " << stopped
        << "\n";
    return ratio > 0 && ratio <= highestRatio && idle == 0 && spinning > 0 && stopped == 0 ? 0 : 1;
}
