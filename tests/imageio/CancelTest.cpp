#include "TestFiles.h"

#include <QElapsedTimer>

using namespace testio;

namespace {

/// Stops as soon as work reports, and measures how long it goes on from there.
struct StopAtOnce {
    std::stop_source source;
    QElapsedTimer since;
    RunControl control{.stop = source.get_token(), .progress = [this](double fraction, const QString &) {
                           if (fraction > 0 && source.request_stop())
                               since.start();
                       }};
};

} // namespace

TEST(Cancel, WritingStopsAndLeavesTheOldFile) {
    const auto image = picture(2000, 1500, 3, SampleType::UInt16);
    for (const char *name : {"a.jpg", "a.png", "a.tif", "a.webp", "a.dng"}) {
        SCOPED_TRACE(name);
        const Folder folder;
        setContents(folder(name), "old");
        StopAtOnce stop;
        const WriteResult result = files().write({image, {}, folder(name), {}, {}}, stop.control);
        EXPECT_TRUE(result.cancelled);
        EXPECT_EQ(result.error.toStdString(), "");
        EXPECT_LT(stop.since.elapsed(), 1000);
        EXPECT_EQ(contents(folder(name)), "old");
        EXPECT_EQ(folder.entries().size(), 1);
    }
}

TEST(Cancel, ReadingStops) {
    const auto image = picture(1600, 1200);
    for (const char *name : {"a.jpg", "a.png", "a.tif", "a.bmp", "a.dng"}) {
        SCOPED_TRACE(name);
        const Folder folder;
        mustWrite(image, folder(name));
        StopAtOnce stop;
        const ReadResult result = files().read({folder(name), false}, stop.control);
        EXPECT_TRUE(result.cancelled);
        EXPECT_EQ(result.error.toStdString(), "");
        EXPECT_FALSE(result.image);
    }
}
