#include "items/TileLoader.h"

#include "items/TileRenderer.h"

#include <QPointer>

#include <algorithm>

namespace {
constexpr int Threads = 2;
}

TileLoader::TileLoader(QObject *parent)
    : QObject(parent)
    , m_generation(std::make_shared<std::atomic<quint64>>(0)) {
    m_threads.setMaxThreadCount(Threads);
    m_threads.setThreadPriority(QThread::LowPriority);
}

TileLoader::~TileLoader() {
    ++*m_generation;
    m_threads.waitForDone();
}

void TileLoader::setImage(const ImageRef &image) {
    if (image == m_image)
        return;
    ++*m_generation;
    m_image = image;
    m_waiting.clear();
    m_running.clear();
    m_made.clear();
}

void TileLoader::want(const std::vector<TileKey> &keys) {
    m_waiting.clear();
    for (const TileKey &key : keys) {
        if (!m_running.contains(key) && !m_made.contains(key))
            m_waiting.push_back(key);
    }
    startNext();
}

void TileLoader::startNext() {
    while (m_image && !m_waiting.empty() && m_running.size() < Threads) {
        const TileKey key = m_waiting.front();
        m_waiting.erase(m_waiting.begin());
        m_running.insert(key);
        const quint64 generation = m_generation->load();
        const QColorSpace display = m_takenForSrgb ? QColorSpace() : QColorSpace(QColorSpace::SRgb);
        // The object outlives its tasks: the destructor waits for them.
        m_threads.start([this, key, image = m_image, current = m_generation, generation, display] {
            if (current->load() != generation)
                return;
            QImage tile = renderTile(*image, key, display);
            QMetaObject::invokeMethod(
                this,
                [this, key, generation, tile = std::move(tile)] {
                    if (m_generation->load() != generation)
                        return;
                    m_running.erase(key);
                    m_made.insert_or_assign(key, tile);
                    startNext();
                    Q_EMIT tilesMade();
                },
                Qt::QueuedConnection);
        });
    }
}

std::map<TileKey, QImage> TileLoader::take() {
    return std::exchange(m_made, {});
}
