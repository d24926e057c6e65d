#pragma once

#include <QString>

#include <chrono>
#include <mutex>

/// Lets the reports of one run through at most 30 times a second; a new stage and the end always
/// pass. Callable from any thread.
class ProgressGate {
public:
    bool admits(double fraction, const QString &stage) {
        const std::scoped_lock lock(m_mutex);
        const auto now = std::chrono::steady_clock::now();
        if (m_begun && fraction < 1 && stage == m_stage && now - m_last < std::chrono::milliseconds(33))
            return false;
        m_begun = true;
        m_last = now;
        m_stage = stage;
        return true;
    }

private:
    std::mutex m_mutex;
    std::chrono::steady_clock::time_point m_last;
    QString m_stage;
    bool m_begun = false;
};
