#pragma once

#include "engine/core/FloatTile.h"

#include <functional>
#include <stop_token>
#include <vector>

/// The tiles of `area`, at most `side` wide and high, row by row.
std::vector<TRect> tilesOf(const TRect &area, int side);

enum class TileRun { Done, Stopped, OutOfMemory };

/// Does `work` for each tile on up to `threads` threads, the caller's among them. When stopped it
/// returns as soon as the tiles under way do. `done` is told the number of finished tiles after
/// each one, never from two threads at once.
TileRun runTiles(const std::vector<TRect> &tiles, int threads, const std::stop_token &stop,
                 const std::function<void(const TRect &, Scratch &)> &work,
                 const std::function<void(std::size_t)> &done);
