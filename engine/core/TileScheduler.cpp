#include "engine/core/TileScheduler.h"

#include <atomic>
#include <mutex>
#include <system_error>
#include <thread>

namespace {

constexpr int LeastSplit = 192; ///< what is narrower is not cut for the sake of a further thread

/// Where `count` pieces of a length begin, with its end behind them.
std::vector<int> cuts(int from, int length, int count) {
    std::vector<int> edges;
    for (int i = 0; i <= count; ++i)
        edges.push_back(from + int(qint64(length) * i / count));
    return edges;
}

} // namespace

std::vector<TRect> tilesOf(const TRect &area, int side, int wanted) {
    int columns = (area.width + side - 1) / side, rows = (area.height + side - 1) / side;
    while (columns * rows < wanted) {
        const int width = area.width / columns, height = area.height / rows;
        if (std::max(width, height) < LeastSplit)
            break;
        ++(width > height ? columns : rows);
    }
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
            // No further thread is to be had: those that started, and this one, do the work.
        }
        loop();
    }
    if (result.end == TileRun::End::Done && stop.stop_requested())
        result.end = TileRun::End::Stopped;
    return result;
}
