#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

/// Work on its way to the log's thread, in the order in which it was given. An event loop would do,
/// but Qt delivers no events before an application object exists or after it has gone, and a log
/// is longer than that.
class LogQueue {
public:
    using Task = std::function<void()>;

    /// Callable from any thread; returns at once, whatever the tasks are waiting for.
    void push(Task task);

    /// No more comes; run() returns when everything given so far is done.
    void close();

    /// Does the work, on the calling thread, until the queue is closed and empty. Each time it has run empty
    /// `whenEmpty` follows: work that comes in bursts is finished once a burst.
    void run(const Task &whenEmpty);

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Task> m_tasks;
    bool m_closed = false;
};
