#pragma once

#include <QObject>

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

class QQuickWindow;

/// Measures how long the thread of the interface keeps an event waiting, and the frames of the window, and
/// logs both once a second; also when a picture has been drawn whole. For the benchmark program: it costs a
/// wake-up every few milliseconds.
class GuiWatch : public QObject {
public:
    /// Null unless the environment asks for it by ORVANE_GUI_WATCH. To be made on the thread it watches.
    static std::unique_ptr<GuiWatch> startIfAsked(QObject *rootOfInterface);
    ~GuiWatch() override;

protected:
    void customEvent(QEvent *event) override;

private:
    using Clock = std::chrono::steady_clock;

    explicit GuiWatch(QQuickWindow *window);
    void followPictures(const QQuickWindow *window);
    void ask(const std::stop_token &stop);
    void frameShown();
    void report();

    std::atomic<bool> m_asked = false; ///< a question is on its way
    Clock::time_point m_askedAt;
    double m_computedAt = 0;
    std::vector<double> m_waits;     ///< milliseconds until the event was taken
    std::vector<double> m_computing; ///< of these, those that the thread itself was computing

    std::mutex m_frames; ///< frames are reported on the render thread
    bool m_firstFrame = true;
    Clock::time_point m_lastFrame;
    std::vector<double> m_intervals;
    std::jthread m_thread;
};
