#pragma once

#include "contracts/ImageData.h"

#include <QByteArray>
#include <QString>

#include <list>
#include <mutex>

/// Outputs of stages, found again under the picture's uid and the settings of the stack up to and
/// including the stage. An entry serves every region that it covers. The least recently used go
/// first when the byte budget is full. Safe to use from several threads.
class StageCache {
public:
    struct Hit {
        ImageRef image;
        TRect covered;
    };

    explicit StageCache(std::size_t budget)
        : m_budget(budget) {}

    /// A null image when nothing covers `region`.
    Hit find(const QString &uid, const QByteArray &stack, const TRect &region);
    void insert(const QString &uid, const QByteArray &stack, const TRect &region, const ImageRef &image);
    /// An empty uid forgets everything.
    void clear(const QString &uid);

private:
    struct Entry {
        QString uid;
        QByteArray stack;
        Hit hit;
    };
    const std::size_t m_budget;
    std::mutex m_mutex;
    std::list<Entry> m_entries; ///< most recently used first
    std::size_t m_bytes = 0;
};
