#include "engine/core/StageCache.h"

#include "engine/core/Region.h"

StageCache::Hit StageCache::find(const QString &uid, const QByteArray &stack, const TRect &region) {
    const std::lock_guard lock(m_mutex);
    for (auto it = m_entries.begin(); it != m_entries.end(); ++it) {
        if (it->uid == uid && it->stack == stack && Region::contains(it->hit.covered, region)) {
            m_entries.splice(m_entries.begin(), m_entries, it);
            return it->hit;
        }
    }
    return {};
}

void StageCache::insert(const QString &uid, const QByteArray &stack, const TRect &region,
                        const ImageRef &image) {
    const std::lock_guard lock(m_mutex);
    const std::size_t bytes = image->byteCount();
    if (uid.isEmpty() || bytes > m_budget)
        return;
    // A region inside the new one, of the same settings, has nothing left to offer.
    for (auto it = m_entries.begin(); it != m_entries.end();) {
        const bool covered =
            it->uid == uid && it->stack == stack && Region::contains(region, it->hit.covered);
        if (covered)
            m_bytes -= it->hit.image->byteCount();
        it = covered ? m_entries.erase(it) : std::next(it);
    }
    while (!m_entries.empty() && m_bytes + bytes > m_budget) {
        m_bytes -= m_entries.back().hit.image->byteCount();
        m_entries.pop_back();
    }
    m_entries.push_front({uid, stack, {image, region}});
    m_bytes += bytes;
}

void StageCache::clear(const QString &uid) {
    const std::lock_guard lock(m_mutex);
    for (auto it = m_entries.begin(); it != m_entries.end();) {
        const bool mine = uid.isEmpty() || it->uid == uid;
        if (mine)
            m_bytes -= it->hit.image->byteCount();
        it = mine ? m_entries.erase(it) : std::next(it);
    }
}
