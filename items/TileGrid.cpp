#include "items/TileGrid.h"

#include <algorithm>
#include <cmath>

QSize TileGrid::levelSize(int level) const {
    const int step = 1 << level;
    return {(m_size.width() + step - 1) / step, (m_size.height() + step - 1) / step};
}

int TileGrid::coarsestLevel() const {
    int level = 0;
    while (std::max(levelSize(level).width(), levelSize(level).height()) > TileSide)
        ++level;
    return level;
}

int TileGrid::levelFor(double zoom) const {
    if (!(zoom > 0))
        return coarsestLevel();
    const int wanted = int(std::floor(std::log2(1.0 / zoom) + 1e-6));
    return std::clamp(wanted, 0, coarsestLevel());
}

QRect TileGrid::tileInLevel(const TileKey &key) const {
    const QRect tile(key.column * TileSide, key.row * TileSide, TileSide, TileSide);
    return tile & QRect(QPoint(0, 0), levelSize(key.level));
}

QRectF TileGrid::tileInPicture(const TileKey &key) const {
    const double step = 1 << key.level;
    const QRectF inLevel = tileInLevel(key);
    return QRectF(inLevel.topLeft() * step, inLevel.size() * step) & QRectF(QPointF(0, 0), m_size);
}

std::vector<TileKey> TileGrid::tilesIn(const QRectF &visible, int level) const {
    std::vector<TileKey> keys;
    const QRectF seen = visible & QRectF(QPointF(0, 0), m_size);
    if (seen.isEmpty())
        return keys;
    const double side = double(TileSide) * (1 << level);
    const auto index = [side](double at) { return int(std::floor(at / side)); };
    const int lastColumn = int(std::ceil(seen.right() / side)) - 1;
    const int lastRow = int(std::ceil(seen.bottom() / side)) - 1;
    for (int row = index(seen.top()); row <= lastRow; ++row) {
        for (int column = index(seen.left()); column <= lastColumn; ++column)
            keys.push_back({level, column, row});
    }
    const QPointF centre = seen.center() / side - QPointF(0.5, 0.5);
    const auto distance = [centre](const TileKey &key) {
        return std::hypot(key.column - centre.x(), key.row - centre.y());
    };
    std::ranges::stable_sort(keys, {}, distance);
    return keys;
}
