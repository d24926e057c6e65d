#include "engine/core/TileScheduler.h"

#include <atomic>
#include <mutex>
#include <system_error>
#include <thread>

std::vector<TRect> tilesOf(const TRect &area, int side) {
    std::vector<TRect> tiles;
    for (int y = area.y; y < Region::bottom(area); y += side)
        for (int x = area.x; x < Region::right(area); x += side)
            tiles.push_back(Region::intersected(area, {x, y, side, side}));
    return tiles;
}

TileRun runTiles(const std::vector<TRect> &tiles, int threads, const std::stop_token &stop,
                 const std::function<void(const TRect &, Scratch &)> &work,
                 const std::function<void(std::size_t)> &done) {
    std::atomic<std::size_t> next = 0;
    std::atomic<bool> outOfMemory = false;
    std::mutex mutex;
    std::size_t finished = 0;
    const auto loop = [&] {
        try {
            Scratch scratch;
            while (!stop.stop_requested() && !outOfMemory) {
                const std::size_t i = next.fetch_add(1);
                if (i >= tiles.size())
                    return;
                scratch.clear();
                work(tiles[i], scratch);
                if (stop.stop_requested())
                    return;
                const std::lock_guard lock(mutex);
                done(++finished);
            }
        } catch (const std::bad_alloc &) {
            outOfMemory = true;
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
    if (outOfMemory)
        return TileRun::OutOfMemory;
    return stop.stop_requested() ? TileRun::Stopped : TileRun::Done;
}
