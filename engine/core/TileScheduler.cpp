#include "engine/core/TileScheduler.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <system_error>
#include <thread>

namespace {

constexpr int LeastSplit = 96; ///< no piece is made narrower for the sake of a further thread
constexpr int Borders = 48;    ///< what a typical stage reads more than it writes, on both sides together

struct Grid {
    int columns;
    int rows;

    /// The pixels that the busiest thread goes through.
    double load(const TRect &area, int threads) const {
        const int rounds = (columns * rows + threads - 1) / threads;
        return rounds * (double(area.width) / columns + Borders) * (double(area.height) / rows + Borders);
    }
};

/// Tiles of `side` at most; more of them where that spreads the work over the threads better.
Grid gridOf(const TRect &area, int side, int threads) {
    const Grid least{(area.width + side - 1) / side, (area.height + side - 1) / side};
    const auto most = [threads](int pieces, int length) {
        return std::max(pieces, std::min(pieces + threads - 1, length / LeastSplit));
    };
    Grid best = least;
    for (int columns = least.columns; columns <= most(least.columns, area.width); ++columns)
        for (int rows = least.rows; rows <= most(least.rows, area.height); ++rows)
            if (const Grid grid{columns, rows}; grid.load(area, threads) < best.load(area, threads))
                best = grid;
    return best;
}

/// Where `count` pieces of a length begin, with its end behind them.
std::vector<int> cuts(int from, int length, int count) {
    std::vector<int> edges;
    for (int i = 0; i <= count; ++i)
        edges.push_back(from + int(qint64(length) * i / count));
    return edges;
}

} // namespace

std::vector<TRect> tilesOf(const TRect &area, int side, int threads) {
    const auto [columns, rows] = gridOf(area, side, std::max(1, threads));
    const std::vector<int> x = cuts(area.x, area.width, columns), y = cuts(area.y, area.height, rows);
    std::vector<TRect> tiles;
    for (std::size_t j = 1; j < y.size(); ++j)
        for (std::size_t i = 1; i < x.size(); ++i)
            tiles.push_back(Region::fromEdges(x[i - 1], y[j - 1], x[i], y[j]));
    return tiles;
}

TileRun runTiles(const std::vector<TRect> &tiles, int threads, const std::stop_token &stop,
                 const std::function<QString(const TRect &, Scratch &)> &work,
                 const std::function<void(std::size_t)> &done) {
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> over = false;
    std::mutex mutex;
    std::size_t finished = 0;
    TileRun result;
    const auto fail = [&](TileRun::End end, const QString &error) {
        over = true;
        const std::lock_guard lock(mutex);
        if (result.end == TileRun::End::Done)
            result = {end, error};
    };
    const auto loop = [&] {
        try {
            Scratch scratch;
            while (!stop.stop_requested() && !over) {
                const std::size_t i = next.fetch_add(1);
                if (i >= tiles.size())
                    return;
                scratch.clear();
                const QString error = work(tiles[i], scratch);
                if (stop.stop_requested())
                    return;
                if (!error.isEmpty())
                    return fail(TileRun::End::Failed, error);
                const std::lock_guard lock(mutex);
                done(++finished);
            }
        } catch (const std::bad_alloc &) {
            fail(TileRun::End::OutOfMemory, {});
        }
    };
    {
        std::vector<std::jthread> helpers;
        const std::size_t wanted = std::min(std::size_t(std::max(1, threads)), tiles.size());
        try {
            for (std::size_t i = 1; i < wanted; ++i)
                helpers.emplace_back(loop);
        } catch (const std::system_error &) {
            // No further thread can be started: those that were, and this one, do the work.
        }
        loop();
    }
    if (result.end == TileRun::End::Done && stop.stop_requested())
        result.end = TileRun::End::Stopped;
    return result;
}
