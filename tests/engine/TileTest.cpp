#include "engine/core/TileScheduler.h"

#include <gtest/gtest.h>

/// Every pixel once, no tile over its side, and as many tiles as the threads can share evenly.
TEST(Tiles, CoverTheAreaAndKeepThreadsBusy) {
    struct Row {
        const char *name;
        TRect area;
        int side, threads;
        std::size_t count;
    };
    const Row rows[] = {
        {"one thread cuts no more than it has to", {0, 0, 2600, 1800}, 640, 1, 15},
        {"an odd one left over would leave a thread idle", {0, 0, 2600, 1800}, 640, 2, 18},
        {"one tile for two threads", {-7, 3, 500, 400}, 640, 2, 2},
        {"a strip is cut along its length only", {5, 5, 4000, 40}, 640, 4, 8},
        {"too small to share", {0, 0, 150, 150}, 640, 8, 1},
        {"a single pixel", {3, 4, 1, 1}, 640, 2, 1},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const std::vector<TRect> tiles = tilesOf(row.area, row.side, row.threads);
        EXPECT_EQ(tiles.size(), row.count);
        qint64 pixels = 0;
        for (std::size_t i = 0; i < tiles.size(); ++i) {
            EXPECT_TRUE(tiles[i].width > 0 && tiles[i].width <= row.side) << tiles[i].width;
            EXPECT_TRUE(tiles[i].height > 0 && tiles[i].height <= row.side) << tiles[i].height;
            EXPECT_EQ(Region::intersected(tiles[i], row.area), tiles[i]);
            pixels += qint64(tiles[i].width) * tiles[i].height;
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_TRUE(Region::intersected(tiles[i], tiles[j]).isEmpty()) << i << " and " << j;
        }
        EXPECT_EQ(pixels, qint64(row.area.width) * row.area.height);
    }
}
