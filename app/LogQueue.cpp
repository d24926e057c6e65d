#include "app/LogQueue.h"

void LogQueue::push(Task task) {
    {
        const std::scoped_lock lock(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    m_changed.notify_one();
}

void LogQueue::close() {
    {
        const std::scoped_lock lock(m_mutex);
        m_closed = true;
    }
    m_changed.notify_one();
}

void LogQueue::run(const Task &whenEmpty) {
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_closed || !m_tasks.empty(); });
        if (m_tasks.empty())
            return;
        while (!m_tasks.empty()) {
            const Task task = std::move(m_tasks.front());
            m_tasks.pop_front();
            lock.unlock();
            task();
            lock.lock();
        }
        lock.unlock();
        whenEmpty();
        lock.lock();
    }
}
