#pragma once

#include "engine/catalogue/NetworkDefinition.h"
#include "engine/inference/Network.h"

#include <QDateTime>

#include <list>
#include <mutex>

/// The networks in use, each loaded once and kept; the least recently used go first. Safe to use
/// from several threads.
class NetworkStore {
public:
    /// Nothing, and `error`, when the file can't be used. A file that has changed is read anew.
    std::shared_ptr<const Network> get(const NetworkDefinition &definition, QString *error);
    void releaseMemory();

private:
    struct Entry {
        QString path;
        int scale;
        qsizetype conditions;
        qint64 size;
        QDateTime modified;
        std::shared_ptr<const Network> network;
    };

    static constexpr std::size_t Kept = 32;
    std::mutex m_mutex;
    std::list<Entry> m_entries; ///< most recently used first
};
