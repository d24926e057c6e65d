#include "ModelHarness.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString Raw = u"RAW"_s;
const QString Denoise = u"Denoise"_s;
const QString Faces = u"Face Recovery"_s;

void onImage(C c, int index, const std::function<void()> &run) {
    const int before = c.currentIndex();
    c.setCurrentIndex(index);
    run();
    c.setCurrentIndex(before);
}

void addRaw(C c, bool linear) {
    addFilter(c, Raw, Raw, {{u"auto"_s, true}});
    c.setModel(Raw, linear ? u"Linear RAW"_s : u"RAW Native"_s);
}

} // namespace

TEST(Copying, LaysTheOrderAndTheFilters) {
    ThreeImages c;
    addFilter(c, Denoise, Denoise, {{u"p"_s, 0.5}});
    addFilter(c, Faces, Faces, {{u"param1"_s, 0.7}, {u"selectedFaces"_s, QVariantList{1}}});
    onImage(c, 2, [&c] {
        addFilter(c, u"Sharpen"_s, u"Sharpen"_s);
        addFilter(c, Raw, Raw);
        addFilter(c, Faces, Faces, {{u"param1"_s, 0.1}, {u"selectedFaces"_s, QVariantList{4, 5}}});
    });
    EXPECT_FALSE(c.doCurrentControlsMatchImage(u"/c.nef"_s));
    SignalRecorder recorder(c);
    EXPECT_TRUE(c.applyCurrentControlsToImage(u"/c.nef"_s));
    EXPECT_EQ(recorder.take(), "currentControls filterOrder " + Propagated + ' ' + Propagated);
    EXPECT_EQ(c.getFilterOrder(2), QStringList({Raw, Denoise, Faces})) << "RAW is kept, and first";
    EXPECT_EQ(filterOf(c, Faces, 2).value(u"params"_s).toMap(),
              QVariantMap({{u"param1"_s, 0.7}, {u"selectedFaces"_s, QVariantList{4, 5}}}));
    EXPECT_TRUE(c.getControls(2).value(u"initialFiltersApplied"_s).toBool());

    EXPECT_TRUE(c.applyCurrentControlsToImage(u"/b.jpg"_s));
    EXPECT_TRUE(c.doCurrentControlsMatchImage(u"/b.jpg"_s));
    EXPECT_TRUE(c.doCurrentControlsMatchImage({}));
    c.setParam(Denoise, u"p"_s, 0.9);
    EXPECT_FALSE(c.doCurrentControlsMatchImage(u"/b.jpg"_s));
    recorder.take();
    EXPECT_TRUE(c.applyCurrentControlsToImage(u"/a.jpg"_s, false)) << "onto itself";
    EXPECT_EQ(filterOf(c, Denoise).value(u"params"_s).toMap().value(u"p"_s), QVariant(0.9));
    EXPECT_FALSE(c.applyCurrentControlsToImage({}));
    EXPECT_EQ(recorder.take(), "");
}

TEST(Copying, WithoutSignalsTheOrderStays) {
    ThreeImages c;
    addFilter(c, Raw, Raw);
    addFilter(c, Denoise, Denoise);
    EXPECT_TRUE(c.applyCurrentControlsToImage(u"/c.nef"_s, false));
    EXPECT_TRUE(c.getFilterOrder(2).isEmpty() && !filterOf(c, Denoise, 2).isEmpty());
    EXPECT_TRUE(c.applyCurrentControlsToImage(u"/b.jpg"_s));
    EXPECT_EQ(c.getFilterOrder(1), QStringList(Denoise)) << "no RAW on a picture that isn't";
}

TEST(Copying, AutopilotStandsInWhereOneIsLinear) {
    const QVariantMap answer = json(R"({ "RAW": { "category": "RAW", "model": "Linear RAW", "p": 1 },
                                         "Denoise": { "category": "Denoise", "model": "D", "p": 2 } })");
    const auto copiedRaw = [&answer](bool sourceLinear, bool targetLinear, bool targetAnswered) {
        ThreeImages c;
        c.loadImages({u"/d.nef"_s});
        if (targetAnswered)
            c.setAutopilotSettings(answer);
        if (targetLinear)
            addRaw(c, true);
        c.setCurrentIndex(2);
        c.setAutopilotSettings(answer);
        addRaw(c, sourceLinear);
        EXPECT_TRUE(c.applyCurrentControlsToImage(u"/d.nef"_s));
        return filterOf(c, Raw, 3);
    };
    EXPECT_EQ(copiedRaw(true, false, true).value(u"model"_s), u"D"_s);
    EXPECT_FALSE(copiedRaw(true, false, true).value(u"enabled"_s).toBool())
        << "stands in for another category";
    EXPECT_EQ(copiedRaw(false, true, true).value(u"model"_s), u"Linear RAW"_s);
    EXPECT_TRUE(copiedRaw(false, true, true).value(u"enabled"_s).toBool());
    EXPECT_EQ(copiedRaw(false, true, false).value(u"model"_s), u"RAW Native"_s) << "no answer";
    EXPECT_EQ(copiedRaw(true, true, true).value(u"model"_s), u"Linear RAW"_s);
}
