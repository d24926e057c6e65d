#include "ModelHarness.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const std::string Param = "currentControls hasS3UploadableImages";
const std::string Order = "currentControls filterOrder " + Propagated;
const QString D = u"Denoise"_s;

QVariantMap flat(const QString &key, const QVariant &value) {
    return {{key, value}};
}

} // namespace

TEST(Operations, FireAndCount) {
    checkOperations(
        {
            {"equal value", [](C c) { EXPECT_FALSE(c.setParam(D, u"p"_s, 0.5)); }, ""},
            {"other value", [](C c) { EXPECT_TRUE(c.setParam(D, u"p"_s, 0.51)); }, Param, Marked},
            {"enabled", [](C c) { EXPECT_TRUE(c.setParam(D, u"enabled"_s, u"false"_s)); }, Propagated,
             Marked},
            {"flat map", [](C c) { EXPECT_TRUE(c.setParams(D, flat(u"p"_s, 0.7))); }, Param, Marked},
            {"map with enabled",
             [](C c) { EXPECT_TRUE(c.setParams(D, {{u"p"_s, 1.0}, {u"enabled"_s, true}})); }, Propagated,
             Marked},
            {"model of the active filter", [](C c) { c.setModel(D, u"M"_s); }, "currentModel " + Param,
             Marked},
            {"model of another filter", [](C c) { c.setModel(u"Sharpen"_s, u"M"_s); },
             "currentCategory currentModel " + Param, Marked},
            {"same model, another filter", [](C c) { c.setModel(u"Denoise2"_s, u"M"_s); },
             "currentCategory " + Param},
            {"empty model", [](C c) { c.setModel(u"Sharpen"_s, {}); }, ""},
            {"active filter", [](C c) { c.setActiveCategory(u"Denoise2"_s); },
             "currentCategory currentModel subjectSettings"},
            {"key removed", [](C c) { EXPECT_TRUE(c.removeKeyFromControlParams(D, u"p"_s)); },
             Propagated + " currentControls", Marked},
            {"no such key", [](C c) { EXPECT_FALSE(c.removeKeyFromControlParams(D, u"q"_s)); }, ""},
            {"filter removed", [](C c) { EXPECT_TRUE(c.removeFilterControl(D)); },
             Propagated + " currentControls", Marked},
            {"filter started", [](C c) { c.initializeFilter(u"Denoise3"_s, D); }, "", Counted},
            {"same order", [](C c) { c.setFilterOrder({D, u"Denoise2"_s}); }, Order},
            {"other order", [](C c) { c.setFilterOrder({D}); }, Order, Marked},
            {"crop", [](C c) { c.setCrop({0, 0, 0.5, 0.5}, 0.1); }, "currentImageData imageData"},
            {"thumbnail of this", [](C c) { c.setThumbnail(0, u"/t.png"_s); }, "currentImageData imageData"},
            {"subject", [](C c) { c.setSubjectSettings(D, flat(u"model"_s, u"Sky"_s)); },
             "subjectSettings currentControls", Marked},
            {"empty subject", [](C c) { c.setSubjectSettings(D, {}); }, ""},
            {"subject started", [](C c) { c.initializeSubject(D); }, "", Counted},
            {"other status", [](C c) { c.setAutoPilotStatus(TImageSettings::On); }, Param, Marked},
            {"same status", [](C c) { c.setAutoPilotStatus(TImageSettings::Processing); }, ""},
            {"noise", [](C c) { c.setNoiseLevel(Autopilot::Level::Low); }, "currentControls", Marked},
            {"Autopilot's answer", [](C c) { c.setAutopilotSettings({}); },
             Propagated + " autoPilotCalculated", Marked},
            {"Autopilot applied early", [](C c) { c.applyAutopilotToImage(); }, "autoPilotApplied", Marked},
            {"Autopilot applied to another", [](C c) { c.applyAutopilotToImage(u"/b.jpg"_s); },
             "autoPilotApplied " + Propagated},
            {"suggestions", [](C c) { c.setAutoPilotSuggestionOrder({}); }, "autoPilotSuggestionOrder"},
        },
        [](C c) {
            addFilter(c, D, D, {{u"p"_s, 0.5}});
            addFilter(c, u"Denoise2"_s, D);
            c.setModel(u"Denoise2"_s, u"M"_s);
            c.setActiveCategory(D);
        });
}

TEST(Operations, SetControls) {
    const QVariantMap answers = {{D, flat(u"enabled"_s, true)}};
    const QVariantMap on = {{D, flat(u"enabled"_s, true)}, {u"autoPilot"_s, 3}};
    checkOperations(
        {
            {"a filter changes", [&](C c) { c.setControls(0, on); }, WholeSet, Marked},
            {"of another image", [&](C c) { c.setControls(1, on); }, ""},
            {"nothing, forced", [](C c) { c.setControls(0, {}, true); }, WholeSet},
            {"nothing", [](C c) { c.setControls(0, {}); }, WholeSet, Marked},
            {"Autopilot's answers alone",
             [&](C c) { c.setControls(0, flat(u"autoPilotSettings"_s, answers), true); }, WholeSet},
        },
        [](C) {});

    ThreeImages c;
    const auto status = [&c](const QVariantMap &controls, bool forced) {
        c.setControls(0, controls, forced);
        return c.currentControls().value(u"autoPilot"_s).toInt();
    };
    EXPECT_EQ(status({{u"autoPilot"_s, 0}}, true), TImageSettings::Off);
    EXPECT_EQ(status({{u"autoPilot"_s, 2}}, false), TImageSettings::On);
    EXPECT_EQ(status(on, false), TImageSettings::Processing);
    EXPECT_FALSE(c.isAutopilotCalculated({}));
}

TEST(Operations, WithoutImageWorkOnARecordOfTheirOwn) {
    TControls c;
    SignalRecorder recorder(c);
    c.setCrop({0, 0, 1, 1}, 0);
    EXPECT_EQ(recorder.take(), "");
    EXPECT_TRUE(c.cropRoi().isNull());
    EXPECT_EQ(c.size(), 0);
    EXPECT_TRUE(c.setParam(D, u"p"_s, 1));
    EXPECT_EQ(c.size(), 1);
    EXPECT_EQ(c.currentControls().value(D).toMap().value(u"params"_s).toMap(), flat(u"p"_s, 1));
    c.setAutoPilotSuggestionOrder({{{u"filterName"_s, D}}});
    EXPECT_TRUE(c.getAutoPilotSuggestionOrder(-1).isEmpty());
    EXPECT_EQ(c.autoPilotSuggestionOrder().size(), 1);
}

TEST(Operations, InitializeFilterTakesTheFirstModelAndOverwritesAll) {
    ThreeImages c;
    c.setParams(D, json(R"({ "q": 1, "enabled": true, "subjectSettings": { "model": "Sky" } })"));
    c.initializeFilter(D, D);
    EXPECT_EQ(filterOf(c, D), json(R"({ "category": "Denoise", "model": "Low Light Beta", "enabled": false,
                                        "params": { "param1_normalv2": 0.3, "b": 0 }, "subjectSettings": {} })"));
}

TEST(Operations, SubjectsStartByCategory) {
    ThreeImages c;
    c.setDefaultSubjectType(u"none"_s);
    QVariantMap expected =
        json(R"({ "sensitivity": 0.3, "feathering": 1, "strokes": [], "originalSubjectPath": "" })");
    for (const QString &name :
         {u"Denoise2"_s, u"White Balance Adjust"_s, u"Exposure Adjust3"_s, u"Sharpen2"_s}) {
        c.initializeSubject(name);
        c.setSubjectSettings(name, flat(u"sensitivity"_s, 0.3));
        expected.insert(u"model"_s, name == "Sharpen2"_L1 ? u"none"_s : u"All"_s);
        EXPECT_EQ(c.getSubjectSettings(name), expected);
    }
    EXPECT_FALSE(c.isSubjectModified(u"/a.jpg"_s));
}

TEST(Operations, CountWrapsAndFlagsFall) {
    TImageSettings settings;
    settings.changesCount = 65535;
    settings.justSaved = settings.presetApplied = settings.presetAppliedNoModifications = true;
    settings.resetSubject(D, u"All"_s);
    EXPECT_EQ(settings.changesCount, 0);
    EXPECT_TRUE(settings.justSaved && settings.presetAppliedNoModifications);
    EXPECT_TRUE(settings.setFilterOrder({D}));
    EXPECT_FALSE(settings.justSaved || settings.presetAppliedNoModifications);
}

TEST(Operations, CatalogueTables) {
    TControls c;
    SignalRecorder recorder(c);
    c.setModelParamInfo(testCatalogue());
    c.setModelParamInfo(testCatalogue());
    EXPECT_EQ(recorder.take(), "modelParamInfo modelNames modelParamInfo modelNames");
    EXPECT_EQ(c.modelNames().value(D).toList(), QVariantList({u"Low Light Beta"_s, u"Severe Noise"_s}));
    EXPECT_EQ(c.modelNames().keys(), QStringList({u"Auto Param"_s, u"Broken"_s, D, u"Sharpen"_s}));
    EXPECT_EQ(c.defaultParams().keys(), QStringList({u"Broken"_s, D, u"Sharpen"_s}));
}
