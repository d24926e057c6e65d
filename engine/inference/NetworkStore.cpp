#include "engine/inference/NetworkStore.h"

#include <QFileInfo>

#include <algorithm>

std::shared_ptr<const Network> NetworkStore::get(const NetworkDefinition &definition, QString *error) {
    const QFileInfo file(definition.path);
    Entry entry{definition.path, definition.scale,    definition.conditions.size(),
                file.size(),     file.lastModified(), nullptr};
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry &e) {
        return e.path == entry.path && e.scale == entry.scale && e.conditions == entry.conditions;
    });
    if (found != m_entries.end()) {
        if (found->size == entry.size && found->modified == entry.modified) {
            m_entries.splice(m_entries.begin(), m_entries, found);
            return found->network;
        }
        m_entries.erase(found);
    }
    entry.network = Network::load(entry.path, entry.scale, int(entry.conditions), error);
    if (!entry.network)
        return nullptr;
    m_entries.push_front(entry);
    if (m_entries.size() > Kept)
        m_entries.pop_back();
    return entry.network;
}

void NetworkStore::releaseMemory() {
    const std::lock_guard lock(m_mutex);
    if (!m_entries.empty())
        m_entries.front().network->releaseMemory();
}
