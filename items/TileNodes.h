#pragma once

#include "items/TileGrid.h"

#include <QImage>
#include <QSGClipNode>
#include <QSGImageNode>
#include <QSGTransformNode>

#include <functional>
#include <map>

class QQuickWindow;

/// The scene graph's side of a tiled picture: a clip, a transform from picture pixels, and an image node
/// for each tile. Lives on the render thread; touched only while the GUI thread is held.
class TileNodes : public QSGClipNode {
public:
    struct Wanted {
        std::vector<TileKey> missing; ///< most urgent first
        bool uploadsLeft = false;     ///< tiles were made but wait for another frame
    };

    TileNodes();

    void place(const QTransform &pixelsToItem, const QRectF &clip);
    void clear();

    /// Takes up to UploadsPerFrame of the made tiles as textures, drops what is neither seen nor the coarse
    /// whole, and says what is missing for `visible` (pixels of the picture) at `zoom`.
    Wanted show(QQuickWindow *window, const TileGrid &grid, const QRectF &visible, double zoom,
                std::map<TileKey, QImage> made);

    static constexpr int UploadsPerFrame = 4;
    static constexpr std::size_t KeptTiles = 160;

private:
    void drop(std::map<TileKey, QSGImageNode *>::iterator at);
    QSGNode *groupOf(int level);

    QSGTransformNode m_transform;
    QSGGeometry m_clipGeometry;
    std::map<int, QSGNode *, std::greater<>> m_groups;
    std::map<TileKey, QSGImageNode *> m_nodes;
    std::map<TileKey, QImage> m_made;
};
