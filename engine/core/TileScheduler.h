#pragma once

#include "engine/core/FloatTile.h"

#include <QString>

#include <functional>
#include <stop_token>
#include <vector>

/// The tiles of `area` row by row: at most `side` wide and high, of about one size, and as many as keep all
/// `threads` about equally busy where the area isn't tiny.
std::vector<TRect> tilesOf(const TRect &area, int side, int threads = 1);

struct TileRun {
    enum class End { Done, Stopped, OutOfMemory, Failed };
    End end = End::Done;
    QString error{}; ///< of the first tile that failed
};

/// Does `work` for each tile on up to `threads` threads, the caller's among them. When stopped, or
/// when `work` returns an error text, it returns as soon as the tiles under way do. `done` gets the number
/// of finished tiles after each one, never from two threads at once.
TileRun runTiles(const std::vector<TRect> &tiles, int threads, const std::stop_token &stop,
                 const std::function<QString(const TRect &, Scratch &)> &work,
                 const std::function<void(std::size_t)> &done);
