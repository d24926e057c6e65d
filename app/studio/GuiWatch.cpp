#include "app/studio/GuiWatch.h"

#include "items/TSelectionPreview.h"

#include <QCoreApplication>
#include <QDebug>
#include <QEvent>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <utility>

#ifdef Q_OS_LINUX
#include <pthread.h>
#include <time.h>
#endif

using namespace Qt::StringLiterals;

namespace {

constexpr double StepMs = 4;

double milliseconds(std::chrono::steady_clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

#ifdef Q_OS_LINUX
clockid_t clockOf(pthread_t thread) {
    clockid_t clock = CLOCK_MONOTONIC;
    pthread_getcpuclockid(thread, &clock);
    return clock;
}
clockid_t watchedClock = CLOCK_MONOTONIC;

double computedMs() {
    timespec time{};
    clock_gettime(watchedClock, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}
#else
double computedMs() {
    return 0;
}
#endif

/// Sorts the values.
double share(std::vector<double> &values, double part) {
    if (values.empty())
        return 0;
    std::ranges::sort(values);
    return values[std::min(values.size() - 1, std::size_t(part * double(values.size())))];
}

QString nameOf(const QQuickItem *item) {
    for (; item; item = item->parentItem()) {
        const QVariant name = item->property("name");
        if (name.isValid())
            return name.toString();
    }
    return {};
}

} // namespace

std::unique_ptr<GuiWatch> GuiWatch::startIfAsked(QObject *rootOfInterface) {
    auto *window = qobject_cast<QQuickWindow *>(rootOfInterface);
    if (!window || qEnvironmentVariableIsEmpty("ORVANE_GUI_WATCH"))
        return nullptr;
    return std::unique_ptr<GuiWatch>(new GuiWatch(window));
}

GuiWatch::GuiWatch(QQuickWindow *window) {
#ifdef Q_OS_LINUX
    watchedClock = clockOf(pthread_self());
#endif
    connect(window, &QQuickWindow::frameSwapped, this, &GuiWatch::frameShown, Qt::DirectConnection);
    followPictures(window);
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &GuiWatch::report);
    timer->start(1000);
    m_thread = std::jthread([this](const std::stop_token &stop) { ask(stop); });
}

GuiWatch::~GuiWatch() = default;

void GuiWatch::followPictures(const QQuickWindow *window) {
    const auto pictures = window->findChildren<TSelectionPreview *>();
    for (TSelectionPreview *picture : pictures) {
        connect(picture, &TSelectionPreview::completeChanged, this, [picture] {
            const QVariantMap data = picture->imageData();
            if (picture->isComplete() && data.contains(u"filepath"_s))
                qInfo().noquote() << "[WATCH] drawn whole:" << nameOf(picture)
                                  << data[u"filepath"_s].toString();
        });
    }
}

void GuiWatch::ask(const std::stop_token &stop) {
    while (!stop.stop_requested()) {
        std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(StepMs));
        if (m_asked)
            continue;
        m_askedAt = Clock::now();
        m_computedAt = computedMs();
        m_asked = true;
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

void GuiWatch::customEvent(QEvent *) {
    const double wait = milliseconds(Clock::now() - m_askedAt);
    const double computed = std::min(wait, computedMs() - m_computedAt);
    // A question at each of these moments would have waited for the rest of the time.
    for (double passed = 0; passed < std::max(wait, StepMs); passed += StepMs) {
        m_waits.push_back(std::max(0.0, wait - passed));
        m_computing.push_back(std::max(0.0, computed - passed));
    }
    m_asked = false;
}

void GuiWatch::frameShown() {
    const auto now = Clock::now();
    const std::scoped_lock lock(m_frames);
    if (std::exchange(m_firstFrame, false))
        qInfo("[WATCH] first frame");
    else
        m_intervals.push_back(milliseconds(now - m_lastFrame));
    m_lastFrame = now;
}

void GuiWatch::report() {
    std::vector<double> intervals;
    {
        const std::scoped_lock lock(m_frames);
        intervals.swap(m_intervals);
    }
    qInfo("[WATCH] frames %d interval %.1f wait %.2f %.1f computing %.2f %.1f", int(intervals.size()),
          share(intervals, 0.5), share(m_waits, 0.99), share(m_waits, 1), share(m_computing, 0.99),
          share(m_computing, 1));
    m_waits.clear();
    m_computing.clear();
}
