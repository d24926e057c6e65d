#include "frontends/WorkQueue.h"

#include <algorithm>

WorkQueue::~WorkQueue() {
    {
        const std::scoped_lock lock(m_mutex);
        m_waiting.clear();
        for (std::stop_source &stop : m_running)
            stop.request_stop();
    }
    close();
}

std::stop_source WorkQueue::post(Job job) {
    std::stop_source stop;
    {
        const std::scoped_lock lock(m_mutex);
        m_waiting.push_back({stop, std::move(job)});
    }
    m_wake.notify_one();
    if (int(m_threads.size()) < m_threadLimit)
        m_threads.emplace_back([this] { work(); });
    return stop;
}

void WorkQueue::finish() {
    close();
}

void WorkQueue::close() {
    {
        const std::scoped_lock lock(m_mutex);
        m_closed = true;
    }
    m_wake.notify_all();
    m_threads.clear();
}

void WorkQueue::work() {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_closed || !m_waiting.empty(); });
        if (m_waiting.empty())
            return;
        Entry entry = std::move(m_waiting.front());
        m_waiting.pop_front();
        m_running.push_back(entry.stop);
        lock.unlock();
        entry.job(entry.stop.get_token());
        entry.job = nullptr;
        lock.lock();
        std::erase(m_running, entry.stop);
    }
}
