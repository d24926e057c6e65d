#include "items/TileNodes.h"

#include "items/TileRenderer.h"

#include <QMatrix4x4>
#include <QQuickWindow>
#include <QSGTexture>

#include <algorithm>

TileNodes::TileNodes()
    : m_clipGeometry(QSGGeometry::defaultAttributes_Point2D(), 4) {
    m_transform.setFlag(OwnedByParent, false);
    appendChildNode(&m_transform);
    setGeometry(&m_clipGeometry);
}

void TileNodes::place(const QTransform &pixelsToItem, const QRectF &clip) {
    setIsRectangular(true);
    setClipRect(clip);
    QSGGeometry::updateRectGeometry(&m_clipGeometry, clip);
    markDirty(DirtyGeometry);
    const QMatrix4x4 matrix(pixelsToItem);
    if (matrix != m_transform.matrix())
        m_transform.setMatrix(matrix);
}

void TileNodes::clear() {
    while (!m_nodes.empty())
        drop(m_nodes.begin());
    m_made.clear();
}

void TileNodes::drop(std::map<TileKey, QSGImageNode *>::iterator at) {
    delete at->second;
    m_nodes.erase(at);
}

QSGNode *TileNodes::groupOf(int level) {
    QSGNode *&group = m_groups[level];
    if (!group) {
        group = new QSGNode;
        // Coarser levels first, so that finer ones cover them.
        const auto finer = std::ranges::find_if(m_groups, [level](const auto &e) { return e.first < level; });
        if (finer != m_groups.end())
            m_transform.insertChildNodeBefore(group, finer->second);
        else
            m_transform.appendChildNode(group);
    }
    return group;
}

TileNodes::Wanted TileNodes::show(QQuickWindow *window, const TileGrid &grid, const QRectF &visible,
                                  double zoom, std::map<TileKey, QImage> made) {
    m_made.merge(made);
    const int level = grid.levelFor(zoom);
    const TileKey whole{grid.coarsestLevel(), 0, 0};
    std::vector<TileKey> seen = {whole};
    if (level != whole.level) {
        const auto fine = grid.tilesIn(visible, level);
        seen.insert(seen.end(), fine.begin(), fine.end());
    }

    Wanted wanted;
    int uploads = 0;
    for (const TileKey &key : seen) {
        if (m_nodes.contains(key))
            continue;
        const auto pixels = m_made.find(key);
        if (pixels == m_made.end()) {
            wanted.missing.push_back(key);
            continue;
        }
        if (uploads == UploadsPerFrame) {
            wanted.uploadsLeft = true;
            continue;
        }
        ++uploads;
        QSGImageNode *node = window->createImageNode();
        node->setTexture(window->createTextureFromImage(pixels->second));
        node->setOwnsTexture(true);
        const QSizeF inner = QSizeF(pixels->second.size()) - QSizeF(2 * TileBorder, 2 * TileBorder);
        node->setSourceRect(QRectF(QPointF(TileBorder, TileBorder), inner));
        node->setRect(grid.tileInPicture(key));
        groupOf(key.level)->appendChildNode(node);
        m_nodes[key] = node;
        m_made.erase(pixels);
    }
    const auto isSeen = [&seen](const TileKey &key) { return std::ranges::find(seen, key) != seen.end(); };
    // Tiles of another zoom would show through or hide the wanted ones; those of this one may come again.
    for (auto it = m_nodes.begin(); it != m_nodes.end();) {
        const bool otherLevel = it->first.level != level && it->first != whole;
        const bool stale = (otherLevel && wanted.missing.empty() && !wanted.uploadsLeft) ||
                           (m_nodes.size() > KeptTiles && !isSeen(it->first));
        const auto at = it++;
        if (stale)
            drop(at);
    }
    std::erase_if(m_made, [&](const auto &entry) { return !isSeen(entry.first); });
    // Enlarged beyond twice, pixels are what the user wants to see.
    const auto filtering = zoom > 2 ? QSGTexture::Nearest : QSGTexture::Linear;
    for (auto &[key, node] : m_nodes)
        node->setFiltering(key.level == 0 ? filtering : QSGTexture::Linear);
    return wanted;
}
