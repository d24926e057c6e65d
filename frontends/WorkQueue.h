#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>
#include <vector>

/// The worker threads of one front end. Jobs start in the order of posting; with one thread they
/// never overlap. Threads start with the first job. Destruction asks running jobs to stop, drops
/// waiting ones and joins. All members are called from the owner's thread.
class WorkQueue {
public:
    using Job = std::function<void(const std::stop_token &)>;

    explicit WorkQueue(int threads = 1)
        : m_threadLimit(threads) {}
    ~WorkQueue();
    WorkQueue(const WorkQueue &) = delete;
    WorkQueue &operator=(const WorkQueue &) = delete;

    /// The answer asks this one job to stop. A job that is stopped before its turn still runs, to
    /// give its answer, and finds its token stopped.
    std::stop_source post(Job job);

    /// Runs what waits to its end and joins. Nothing may be posted afterwards.
    void finish();

private:
    struct Entry {
        std::stop_source stop;
        Job job;
    };

    void work();
    void close();

    const int m_threadLimit;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<Entry> m_waiting;
    std::vector<std::stop_source> m_running;
    bool m_closed = false;
    std::vector<std::jthread> m_threads;
};
