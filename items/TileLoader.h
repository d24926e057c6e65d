#pragma once

#include "contracts/ImageData.h"
#include "items/TileGrid.h"

#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <map>
#include <memory>
#include <set>

/// Makes the tiles of one picture on threads of its own, the wanted ones first, and hands them over on the
/// thread it lives on. Another picture makes everything under way stale.
class TileLoader : public QObject {
    Q_OBJECT
public:
    explicit TileLoader(QObject *parent = nullptr);
    ~TileLoader() override;

    void setImage(const ImageRef &image);
    const ImageRef &image() const { return m_image; }
    /// Whether samples go to the screen as they are, whatever profile the picture has. Of the next picture
    /// set.
    void setTakenForSrgb(bool taken) { m_takenForSrgb = taken; }

    /// Asks for these, most urgent first; what was asked for before and has not begun is dropped.
    void want(const std::vector<TileKey> &keys);

    /// Takes what has been made since; a tile is handed over once.
    std::map<TileKey, QImage> take();
    bool hasTiles() const { return !m_made.empty(); }

Q_SIGNALS:
    void tilesMade();

private:
    void startNext();

    ImageRef m_image;
    bool m_takenForSrgb = false;
    QThreadPool m_threads;
    std::vector<TileKey> m_waiting;
    std::set<TileKey> m_running;
    std::map<TileKey, QImage> m_made;
    std::shared_ptr<std::atomic<quint64>> m_generation;
};
