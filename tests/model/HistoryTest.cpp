#include "ModelHarness.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString D = u"Denoise"_s;
const QString Enhance = u"Enhance"_s;
const std::string Restored =
    "currentControls filterOrder areFiltersEnabled hasS3UploadableImages subjectSettings";

double strength(C c) {
    return filterOf(c, D).value(u"params"_s).toMap().value(u"p"_s).toDouble();
}

void edit(C c, double value) {
    c.setParam(D, u"p"_s, value);
    c.recordEdit();
}

/// The first image with a filter, and its history begun.
struct Edited : ThreeImages {
    Edited() {
        addFilter(*this, D, D, {{u"p"_s, 0.0}});
        addFilter(*this, Enhance, Enhance, {{u"scale"_s, 2.0}});
        forgetEdits();
    }
};

} // namespace

TEST(History, EveryKindOfEditComesBack) {
    struct Row {
        const char *name;
        std::function<void(C)> change;
        std::string fires = Restored + " editHistory";
    };
    const std::string withCrop = "currentImageData imageData " + Restored + " editHistory";
    const Row rows[] = {
        {"parameter", [](C c) { c.setParam(D, u"p"_s, 0.5); }},
        {"model of the active filter", [](C c) { c.setModel(D, u"M"_s); },
         "currentModel " + Restored + " editHistory"},
        {"filter off", [](C c) { c.setParam(D, u"enabled"_s, false); }},
        {"filter removed", [](C c) { c.removeFilterControl(D); }},
        {"order", [](C c) { c.setFilterOrder({Enhance, D}); }},
        {"subject", [](C c) { c.setSubjectSettings(D, {{u"model"_s, u"Sky"_s}}); }},
        {"preset",
         [](C c) {
             c.applyPresetToImage(u"/a.jpg"_s, json(R"({ "X": { "category": "Sharpen" } })"), {u"X"_s}, true);
         }},
        {"crop", [](C c) { c.setCrop({0, 0, 0.5, 0.5}, 0.1); }, withCrop},
        {"ratio of the crop", [](C c) { c.setCropRatio({3, 2}); }, withCrop},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        Edited c;
        c.setActiveCategory(D);
        const auto state = [&c] {
            QVariantMap controls = c.currentControls();
            for (const char *key : {"changesCount", "presetApplied", "initialFiltersApplied"})
                controls.remove(QString::fromLatin1(key));
            return QVariantList{controls, c.filterOrder(), c.currentImageData()};
        };
        const QVariantList before = state();
        row.change(c);
        const QVariantList after = state();
        EXPECT_NE(before, after);
        c.recordEdit();
        SignalRecorder recorder(c);
        const int counted = changes(c);
        EXPECT_TRUE(c.undoEdit());
        EXPECT_EQ(recorder.take(), row.fires);
        EXPECT_EQ(state(), before);
        EXPECT_EQ(changes(c), counted + 1) << "what was shown is stale";
        EXPECT_TRUE(c.redoEdit());
        EXPECT_EQ(state(), after);
        EXPECT_FALSE(c.redoEdit());
    }
}

TEST(History, StepsEndWhereTheCallerSays) {
    Edited c;
    SignalRecorder recorder(c);
    c.recordEdit();
    EXPECT_FALSE(c.undoEdit());
    EXPECT_EQ(recorder.take(), "") << "nothing changed";
    c.setParam(D, u"p"_s, 0.1);
    c.setParam(D, u"p"_s, 0.2);
    EXPECT_TRUE(c.undoEdit()) << "what is pending is recorded first";
    EXPECT_EQ(strength(c), 0.0);
    c.redoEdit();
    edit(c, 0.3);
    c.undoEdit();
    EXPECT_TRUE(c.canUndo() && c.canRedo());

    c.setParam(Enhance, u"width"_s, 800);
    c.amendEdit();
    EXPECT_TRUE(c.canRedo()) << "what the program derives keeps redo";
    c.undoEdit();
    EXPECT_EQ(strength(c), 0.0);
    EXPECT_TRUE(c.redoEdit());
    EXPECT_EQ(filterOf(c, Enhance).value(u"params"_s).toMap().value(u"width"_s), 800);

    edit(c, 0.9);
    EXPECT_FALSE(c.canRedo()) << "another way was taken";
    c.forgetEdits();
    EXPECT_FALSE(c.canUndo() || c.undoEdit());
    EXPECT_EQ(strength(c), 0.9);
}

TEST(History, WhatIsNoEditMakesNoStep) {
    Edited c;
    c.setParam(Enhance, u"updated"_s, true);
    c.setAutoPilotStatus(TImageSettings::On);
    c.setAutopilotSettings({{D, QVariantMap{{u"enabled"_s, true}}}});
    c.setAutoPilotSuggestionOrder({{{u"filterName"_s, D}}});
    c.setThumbnail(0, u"/t.png"_s);
    c.setNoiseLevel(2);
    c.recordEdit();
    EXPECT_FALSE(c.canUndo());
    edit(c, 0.5);
    c.setParam(Enhance, u"updated"_s, true);
    c.undoEdit();
    EXPECT_FALSE(filterOf(c, Enhance).value(u"params"_s).toMap().value(u"updated"_s).toBool());
    EXPECT_TRUE(c.isAutopilotCalculated({}));
    EXPECT_EQ(c.currentControls().value(u"noise_level"_s), 2);
}

TEST(History, IsBoundedAndEachImageHasItsOwn) {
    Edited c;
    const int steps = int(EditHistory::MaxSteps) + 10;
    for (int i = 1; i <= steps; ++i)
        edit(c, i);
    int undone = 0;
    while (c.undoEdit())
        ++undone;
    EXPECT_EQ(undone, EditHistory::MaxSteps);
    EXPECT_EQ(strength(c), 10.0) << "the oldest dropped";

    SignalRecorder recorder(c);
    c.setCurrentIndex(1);
    EXPECT_EQ(recorder.take(), Switch);
    EXPECT_FALSE(c.canUndo() || c.canRedo());
    c.setParam(D, u"p"_s, 1.0);
    EXPECT_FALSE(c.undoEdit()) << "no history yet";
    c.recordEdit();
    EXPECT_FALSE(c.canUndo()) << "which starts here";
    c.setCurrentIndex(0);
    EXPECT_TRUE(c.canRedo());

    c.closeImage(0);
    c.loadImages({u"/a.jpg"_s});
    EXPECT_FALSE(c.canRedo() || c.redoEdit());
    c.setCurrentIndex(-1);
    c.recordEdit();
    c.forgetEdits();
    EXPECT_FALSE(c.undoEdit());
}
