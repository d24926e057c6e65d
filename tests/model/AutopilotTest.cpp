#include "ModelHarness.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString Sharpen = u"Sharpen"_s;
const QString Denoise = u"Denoise"_s;

QVariantMap answer() {
    return json(R"({ "Sharpen": { "enabled": true, "model": "Sharpen Strong", "stg_blur": 0.4 },
                     "Denoise": { "enabled": false, "model": "Severe Noise" }, "Odd": "no map" })");
}

void applied(C c) {
    c.setAutopilotSettings(answer());
    c.applyAutopilotToImage();
}

} // namespace

TEST(Autopilot, KeepsItsAnswerInNormalForm) {
    ThreeImages c;
    c.setAutopilotSettings(answer());
    const QVariantMap controls = c.currentControls();
    const QVariantMap stored = controls.value(u"autoPilotSettings"_s).toMap();
    EXPECT_EQ(stored.value(Sharpen).toMap(), json(R"({ "enabled": true, "model": "Sharpen Strong",
                                                       "stg_blur": 0.4, "params": { "stg_blur": 0.4 } })"));
    EXPECT_EQ(stored.value(u"Odd"_s).toMap(), json(R"({ "params": {} })"));
    EXPECT_FALSE(controls.contains(Sharpen) || controls.value(u"initialFiltersApplied"_s).toBool());
}

TEST(Autopilot, AppliesWhatItEnables) {
    ThreeImages c;
    addFilter(c, u"Inpaint"_s, u"Inpaint"_s);
    c.applyAutopilotToImage();
    EXPECT_TRUE(c.currentControls().value(u"applyAutopilotOnceCalculated"_s).toBool());
    EXPECT_TRUE(c.currentControls().value(u"initialFiltersApplied"_s).toBool());
    EXPECT_TRUE(c.filterOrder().isEmpty() && filterOf(c, u"Inpaint"_s).isEmpty());
    c.resetManualAPCheck();
    EXPECT_FALSE(c.currentControls().value(u"applyAutopilotOnceCalculated"_s).toBool());

    const int before = changes(c);
    applied(c);
    EXPECT_EQ(changes(c) - before, 4) << "the answer, the order, the filter, and the whole";
    EXPECT_EQ(c.filterOrder(), QStringList(Sharpen));
    EXPECT_EQ(filterOf(c, Sharpen),
              json(R"({ "category": "Sharpen", "model": "Sharpen Strong", "enabled": true,
                                              "params": { "stg_blur": 0.4 }, "subjectSettings": {} })"));
}

TEST(Autopilot, LandsInOneOperation) {
    const QVariantMap landed = json(R"({ "Sharpen": { "enabled": true }, "Denoise": { "enabled": true },
                                         "Enhance": { "enabled": true }, "RAW": { "enabled": false, "p": 1 },
                                         "Text Recovery": { "enabled": false } })");
    const QStringList recommended = {Denoise, Sharpen, u"Enhance"_s};
    const std::string stored = "currentControls hasS3UploadableImages " + Propagated + " autoPilotCalculated";
    const std::string ordered = " currentControls filterOrder " + Propagated;
    struct Row {
        const char *name;
        std::function<void(C)> prepare;
        bool recommend;
        bool add;
        QStringList order;
        std::string fires;
    };
    const auto visited = [](C c) {
        addFilter(c, u"Inpaint"_s, u"Inpaint"_s);
        c.markInitialFiltersApplied();
    };
    const Row rows[] = {
        {"recommended", [](C) {}, true, true, recommended, stored + " autoPilotApplied" + ordered},
        {"not recommended", [](C) {}, false, true, {}, stored + ordered},
        {"not recommended, RAW",
         [](C c) { c.setCurrentIndex(2); },
         false,
         true,
         {u"RAW"_s},
         stored + ' ' + Propagated + ' ' + Propagated + ordered},
        {"visited before", visited, true, true, {u"Inpaint"_s}, stored + ordered},
        {"asked for before the answer",
         [&](C c) {
             visited(c);
             c.applyAutopilotToImage();
         },
         false, true, recommended, stored + " autoPilotApplied" + ordered},
        {"while an edit mode is open", [](C) {}, true, false, {}, stored},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        ThreeImages c;
        row.prepare(c);
        SignalRecorder recorder(c);
        c.landAutopilot(landed, row.recommend, row.add);
        EXPECT_EQ(recorder.take(), row.fires);
        EXPECT_EQ(c.filterOrder(), row.order);
        const QVariantMap controls = c.currentControls();
        EXPECT_EQ(controls.value(u"autoPilot"_s).toInt(), TImageSettings::On);
        EXPECT_TRUE(c.isAutopilotCalculated({}));
        EXPECT_EQ(controls.value(u"initialFiltersApplied"_s).toBool(), row.add);
        EXPECT_FALSE(controls.value(u"applyAutopilotOnceCalculated"_s).toBool());
        for (const QString &name : row.order)
            EXPECT_TRUE(controls.value(name).toMap().value(u"enabled"_s).toBool());
    }
    ThreeImages c;
    visited(c);
    c.landAutopilot(landed, false, true);
    c.applyRecommendedFilters();
    EXPECT_EQ(c.filterOrder(), recommended) << "whatever was there";
}

TEST(Autopilot, ResetToAuto) {
    ThreeImages c;
    applied(c);
    c.setParam(Sharpen, u"stg_blur"_s, 0.9);
    SignalRecorder recorder(c);
    c.resetToAuto(Sharpen);
    EXPECT_EQ(recorder.take(), Propagated);
    EXPECT_EQ(c.filterOrder(), QStringList({Sharpen, Sharpen}));
    c.resetToAuto(u"Sharpen2"_s, Sharpen);
    EXPECT_EQ(recorder.take(), Propagated);
    EXPECT_EQ(c.filterOrder().size(), 2);
    EXPECT_FALSE(c.isModifiedFromAutopilot(u"Sharpen2"_s, Sharpen));
}

TEST(Autopilot, TellsWhatTheUserChanged) {
    struct Row {
        const char *name;
        std::function<void(C)> run;
        bool modified;
    };
    const Row rows[] = {
        {"as applied", [](C) {}, false},
        {"a hundredth apart", [](C c) { c.setParam(Sharpen, u"stg_blur"_s, 0.41); }, false},
        {"another strength", [](C c) { c.setParam(Sharpen, u"stg_blur"_s, 0.5); }, true},
        {"switched off", [](C c) { c.setParam(Sharpen, u"enabled"_s, false); }, true},
        {"removed", [](C c) { c.removeFilterControl(Sharpen); }, true},
        {"an unrecommended one, off", [](C c) { c.initializeFilter(Denoise, Denoise); }, false},
        {"an unrecommended one, on", [](C c) { addFilter(c, Denoise, Denoise); }, true},
        {"without an answer for it", [](C c) { addFilter(c, u"Inpaint"_s, u"Inpaint"_s); }, false},
        {"two of a category", [](C c) { c.resetToAuto(u"Sharpen2"_s, Sharpen); }, true},
        {"empty order", [](C c) { c.setFilterOrder({}); }, true},
        {"answer gone", [](C c) { c.setAutopilotSettings({}); }, true},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        ThreeImages c;
        applied(c);
        row.run(c);
        EXPECT_EQ(c.isModifiedFromAutopilot(u"/a.jpg"_s), row.modified);
    }
}

TEST(Autopilot, NamesForFiles) {
    struct Filter {
        const char *name;
        QVariantMap params = {};
    };
    struct Row {
        const char *names;
        QList<Filter> filters;
    };
    const auto scale = [](double factor) {
        return Filter{"Enhance", {{u"mode"_s, u"scale"_s}, {u"scale"_s, factor}}};
    };
    const Row rows[] = {
        {"", {}},
        {"-denoiseraw-denoise", {{"RAW"}, {"Denoise"}}},
        {"-sharpen-sharpen", {{"Sharpen"}, {"Sharpen2"}}},
        {"-textai-faceai-exposure", {{"Text Recovery"}, {"Face Recovery"}, {"Exposure Adjust"}}},
        {"-color--", {{"White Balance Adjust2"}, {"Other"}, {"RAW2"}}},
        {"-enhance-2x", {scale(2)}},
        {"-enhance-2.5x", {scale(2.5)}},
        {"-enhance-10x", {scale(10.25)}},
        {"-enhance-1e+02x", {scale(100)}},
        {"-enhance-4000w", {{"Enhance", {{u"mode"_s, u"width"_s}, {u"width"_s, 4000}}}}},
        {"-enhance", {{"Enhance", {{u"scale"_s, 2}}}}},
        {"-remove-", {{"Inpaint", {{u"apply1"_s, 1}, {u"apply2"_s, 1}}}}},
        {"-", {{"Inpaint"}}},
    };
    for (const Row &row : rows) {
        ThreeImages c;
        c.setFilterOrder({u"Without a record"_s});
        for (const Filter &filter : row.filters)
            addFilter(c, QString::fromLatin1(filter.name), QString::fromLatin1(filter.name), filter.params);
        EXPECT_EQ(c.getFilterNamesForFilename(0).toStdString(), row.names);
        EXPECT_EQ(c.areFiltersEnabled(), !row.filters.isEmpty());
    }
}
