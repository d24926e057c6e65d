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
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 5;
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
        // Swaps are told from the render thread; queued, they are counted on this one.
        QObject::connect(
            m_window, &QQuickWindow::frameSwapped, m_window, [this] { ++m_frames; }, Qt::QueuedConnection);
        const QDeadlineTimer limit(firstFrameLimitMs);
        while (m_frames == 0 && !limit.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        m_milliseconds = m_frames > 0 ? double(clock.nsecsElapsed()) / 1e6 : -1;
    }

    // To the first frame; negative when there was none.
    double milliseconds() const { return m_milliseconds; }

    int framesWithin(int ms) {
        runEvents(settleMs);
        const int before = m_frames;
        runEvents(ms);
        return m_frames - before;
    }

    void setBusy(bool busy) { m_window->setProperty("busy", busy); }

private:
    QQmlApplicationEngine m_engine;
    QQuickWindow *m_window = nullptr;
    int m_frames = 0;
    double m_milliseconds = -1;
};

double median(std::array<double, rounds> times) {
    std::nth_element(times.begin(), times.begin() + rounds / 2, times.end());
    return times[rounds / 2];
}

} // namespace

int runBench() {
    QTextStream out(stdout);
    const QString empty = u"BenchEmpty"_s;
    const QString controls = u"BenchControls"_s;

    // The first window of a process also starts the graphics driver: it is thrown away.
    if (Start(empty).milliseconds() < 0) {
        out << "no window came up\n";
        return 1;
    }
    std::array<double, rounds> emptyTimes{};
    std::array<double, rounds> controlTimes{};
    for (int i = 0; i < rounds; ++i) {
        emptyTimes[i] = Start(empty).milliseconds();
        controlTimes[i] = Start(controls).milliseconds();
    }
    const double ratio = median(controlTimes) / median(emptyTimes);
    out << "first frame, empty window: " << median(emptyTimes) << " ms\n"
        << "first frame, 300 controls: " << median(controlTimes) << " ms (the first time " << controlTimes[0]
        << " ms)\n"
        << "ratio: " << ratio << " (at most " << highestRatio << ")\n";

    Start window(controls);
    const int idle = window.framesWithin(idleMs);
    window.setBusy(true);
    const int spinning = window.framesWithin(idleMs);
    window.setBusy(false);
    const int stopped = window.framesWithin(idleMs);
    out << "frames in 2 s: idle " << idle << ", with a spinner " << spinning << ", spinner hidden " << stopped
        << "\n";
    return median(emptyTimes) > 0 && ratio <= highestRatio && idle == 0 && spinning > 0 && stopped == 0 ? 0
                                                                                                        : 1;
}
