#include "frontends/TEventTracker.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TEST(EventTracker, SendsOnlyWhenAllowedAndWanted) {
    QStringList sent;
    TEventTracker tracker;
    tracker.setEnabled(true);
    tracker.track(u"no sink"_s);
    TEventTracker::setSink([&](const TEventTracker::Event &event) { sent << event.name + event.machineId; });
    tracker.setMachineId(u" m1"_s);
    tracker.track(u"wanted"_s, {{u"n"_s, 1}});
    tracker.setEnabled(false);
    tracker.track(u"not allowed"_s);
    TEventTracker::setSink(nullptr);
    EXPECT_EQ(sent, QStringList(u"wanted m1"_s));
    EXPECT_FALSE(TEventTracker().enabled());
}

} // namespace
