#pragma once

#include "contracts/RunControl.h"

#include <atomic>
#include <chrono>
#include <thread>

/// Lets a test keep a fake's work under way until it says otherwise.
class Hold {
public:
    void close() { m_closed = true; }
    void open() { m_closed = false; }

    /// Waits while closed; false when the work was asked to stop meanwhile.
    bool pass(const RunControl &control) const {
        while (m_closed && !control.stopped())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return !control.stopped();
    }

private:
    std::atomic<bool> m_closed = false;
};
