#pragma once

#include <QRect>
#include <QRectF>
#include <QSize>

#include <compare>
#include <vector>

/// One square of a picture at one reduction: level 0 is the picture itself, level n has one pixel for
/// 2^n by 2^n of it.
struct TileKey {
    int level = 0;
    int column = 0;
    int row = 0;
    friend auto operator<=>(const TileKey &, const TileKey &) = default;
};

/// How a picture of `size` pixels is cut into tiles of TileSide by TileSide pixels at each level.
class TileGrid {
public:
    static constexpr int TileSide = 512;

    TileGrid() = default;
    explicit TileGrid(QSize size)
        : m_size(size) {}

    /// The level at which the whole picture is one tile.
    int coarsestLevel() const;

    /// The finest level that is not magnified by less than one screen pixel for a pixel: `zoom` is screen
    /// pixels for one pixel of the picture, above 0.
    int levelFor(double zoom) const;

    QSize levelSize(int level) const;

    /// In pixels of the level.
    QRect tileInLevel(const TileKey &key) const;

    /// In pixels of the picture, cut at its edges.
    QRectF tileInPicture(const TileKey &key) const;

    /// The tiles of a level that touch `visible`, a rectangle in pixels of the picture; nearest its centre
    /// first.
    std::vector<TileKey> tilesIn(const QRectF &visible, int level) const;

private:
    QSize m_size;
};
