#include "engine/analysis/ImageFacts.h"

std::list<ImageFacts::Entry>::iterator ImageFacts::find(const QString &uid) {
    return std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &e) { return e.uid == uid; });
}

std::optional<ImageStatistics> ImageFacts::of(const QString &uid, const ImageRef &image,
                                              const std::stop_token &stop, bool *replaced) {
    std::unique_lock lock(m_mutex);
    auto entry = find(uid);
    if (entry != m_entries.end() && entry->image.lock() != image) {
        if (replaced)
            *replaced = true;
        m_entries.erase(entry);
        entry = m_entries.end();
    }
    if (entry != m_entries.end()) {
        // Whoever measures may be stopped and take the entry away; then it is this caller's turn.
        m_changed.wait(lock, stop, [&] {
            entry = find(uid);
            return entry == m_entries.end() || entry->ready;
        });
        if (stop.stop_requested())
            return std::nullopt;
        if (entry != m_entries.end() && entry->image.lock() == image)
            return entry->statistics;
    }
    m_entries.push_front({uid, image, false, {}});
    lock.unlock();
    const ImageStatistics measured = measureImage(*image, stop);
    const bool stopped = stop.stop_requested();
    lock.lock();
    entry = std::find_if(m_entries.begin(), m_entries.end(),
                         [&](const Entry &e) { return e.uid == uid && !e.ready && e.image.lock() == image; });
    if (entry != m_entries.end()) {
        if (stopped) {
            m_entries.erase(entry);
        } else {
            entry->statistics = measured;
            entry->ready = true;
        }
    }
    while (m_entries.size() > Kept && m_entries.back().ready)
        m_entries.pop_back();
    lock.unlock();
    m_changed.notify_all();
    return stopped ? std::nullopt : std::optional(measured);
}

void ImageFacts::clear(const QString &uid) {
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_entries, [&](const Entry &e) { return e.ready && (uid.isEmpty() || e.uid == uid); });
}
