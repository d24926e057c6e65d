#pragma once

#include "contracts/ImageData.h"
#include "engine/analysis/ImageStatistics.h"

#include <QString>

#include <condition_variable>
#include <list>
#include <mutex>
#include <optional>

/// What was measured on the last few pictures, each measured once and shared by the analysis and
/// every run. Safe to use from several threads: a second asker waits for the first one's answer.
class ImageFacts {
public:
    /// Nothing when stopped. `replaced` is set when another picture had this uid.
    std::optional<ImageStatistics> of(const QString &uid, const ImageRef &image, const std::stop_token &stop,
                                      bool *replaced = nullptr);
    /// An empty uid forgets every picture.
    void clear(const QString &uid);

private:
    struct Entry {
        QString uid;
        std::weak_ptr<const ImageData> image;
        bool ready = false;
        ImageStatistics statistics;
    };
    std::list<Entry>::iterator find(const QString &uid);

    static constexpr std::size_t Kept = 16;
    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    std::list<Entry> m_entries; ///< most recently added first
};
