#include "items/PropertyLinker.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PropertyLinker, FollowersGetTheLeadersValueAndNothingElseMoves) {
    PropertyLinker linker;
    PropertyTracker original, preview;
    original.setName(u"Original"_s);
    preview.setName(u"Preview"_s);
    linker.add(&original);
    linker.add(&preview);
    QSignalSpy toOriginal(&original, &PropertyTracker::update);
    QSignalSpy toPreview(&preview, &PropertyTracker::update);

    original.setValue(QPointF(1, 2));
    preview.setValue(QPointF(3, 4));
    ASSERT_EQ(toPreview.size(), 1);
    EXPECT_EQ(toPreview[0][0].toPointF(), QPointF(1, 2));
    EXPECT_EQ(toOriginal.size(), 0) << "a follower's own change reaches nobody";

    linker.setActive(u"nobody"_s);
    preview.setActivateOn(true);
    EXPECT_EQ(linker.active(), u"Preview"_s);
    original.setValue(QPointF(5, 6));
    preview.setValue(QPointF(7, 8));
    EXPECT_EQ(toPreview.size(), 1);
    EXPECT_EQ(toOriginal.size(), 1);
}
