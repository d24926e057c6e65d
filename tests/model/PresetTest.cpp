#include "ModelHarness.h"

#include "model/ParameterBounds.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString A = u"/a.jpg"_s;
const QString D = u"Denoise"_s;
const QString Enhance = u"Enhance"_s;

QVariantMap catalogue() {
    return json(R"({
        "Denoise": { "Fine": { "gui": { "parameters": { "p": { "default": 0.1, "min": 0.01, "max": 1 } } } },
                     "Rough": { "gui": { "parameters": { "q": { "default": 0, "min": 0.01, "max": 1 } } } } },
        "Sharpen": { "Lens": { "gui": { "parameters": { "isLens": { "default": false } } } } },
        "Enhance": { "Plain": {} }, "RAW": { "Native": {} }, "Inpaint": { "Fill": {} } })");
}

struct Presets : ThreeImages {
    Presets() { setModelParamInfo(catalogue()); }
    /// Gives the warning's title.
    std::string put(const char *controls, const char *order, bool resizing = true, bool emits = true) {
        return applyPresetToImage(A, json(controls),
                                  QString::fromLatin1(order).split(u' ', Qt::SkipEmptyParts), resizing, emits)
            .value(u"title"_s)
            .toString()
            .toStdString();
    }
    QVariantMap params(const QString &name) const { return filterOf(*this, name).value(u"params"_s).toMap(); }
    bool flag(const char *name) const { return currentControls().value(QString::fromLatin1(name)).toBool(); }
};

const char *const Denoise =
    R"({ "Denoise": { "category": "Denoise", "model": "Rough", "params": { "q": 0.5 } } })";

} // namespace

TEST(Preset, EachTimeAddsOneMore) {
    Presets c;
    c.setAutopilotSettings(json(R"({ "Denoise": { "enabled": false, "model": "Fine", "q": 0.2, "r": 7 } })"));
    SignalRecorder recorder(c);
    EXPECT_EQ(c.put(Denoise, "Denoise"), "");
    EXPECT_EQ(recorder.take(), "currentControls filterOrder " + Propagated);
    QVariantMap expected = json(R"({ "category": "Denoise", "model": "Rough", "enabled": true,
        "params": { "p": 0.1, "q": 0.5, "r": 7 } })");
    EXPECT_EQ(c.getSubjectSettings(D).value(u"model"_s), u"All"_s);
    QVariantMap filter = filterOf(c, D);
    filter.remove(u"subjectSettings"_s);
    EXPECT_EQ(filter, expected) << "the preset over Autopilot's values over the defaults";

    c.setSubjectSettings(D, {{u"model"_s, u"Sky"_s}});
    c.put(Denoise, "Denoise");
    EXPECT_EQ(c.getSubjectSettings(D).value(u"model"_s), u"All"_s) << "the first filter's is reset";
    EXPECT_TRUE(c.getSubjectSettings(u"Denoise2"_s).isEmpty());
    c.put(Denoise, "Denoise", true, false);
    EXPECT_EQ(c.filterOrder(), QStringList({D, u"Denoise2"_s, u"Denoise3"_s}));
    EXPECT_TRUE(c.flag("presetApplied") && c.flag("initialFiltersApplied"));
    EXPECT_FALSE(c.flag("presetAppliedNoModifications")) << "the order changed";
}

TEST(Preset, OfTwoFiltersOfACategoryTheLaterWins) {
    Presets c;
    c.put(R"({ "Denoise": { "category": "Denoise", "params": { "p": 0.3 } },
               "Denoise2": { "category": "Denoise", "enabled": false, "params": { "p": 0.6 } } })",
          "Denoise Denoise2");
    EXPECT_EQ(c.filterOrder(), QStringList({D, D}));
    EXPECT_EQ(c.params(D).value(u"p"_s), 0.6);
    EXPECT_FALSE(filterOf(c, D).value(u"enabled"_s).toBool()) << "as it was saved";
}

TEST(Preset, Upscales) {
    const char *const both =
        R"({ "Enhance": { "category": "Enhance", "params": { "mode": "width", "width": 900 } },
                                  "Denoise": { "category": "Denoise" } })";
    const char *const same =
        R"({ "Enhance": { "category": "Enhance", "params": { "mode": "scale", "scale": 1 } } })";
    struct Row {
        const char *name, *before, *controls, *order;
        bool resizing;
        std::string title, after;
    };
    const Row rows[] = {
        {"onto none", "", both, "Denoise Enhance", true, "", "Denoise Enhance"},
        {"onto one", "Sharpen Enhance", both, "Denoise Enhance", true, "Upscale was not applied",
         "Sharpen Denoise Enhance"},
        {"onto one, the preset has none", "Enhance", Denoise, "Denoise", true, "", "Enhance Denoise"},
        {"in a host of one size", "", both, "Enhance", false, "Upscale filter modified", "Enhance"},
        {"of that size", "", same, "Enhance", false, "", "Enhance"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        Presets c;
        for (const QString &name : QString::fromLatin1(row.before).split(u' ', Qt::SkipEmptyParts))
            addFilter(c, name, name);
        EXPECT_EQ(c.put(row.controls, row.order, row.resizing), row.title);
        EXPECT_EQ(c.filterOrder().join(u' ').toStdString(), row.after);
        if (!row.resizing) {
            EXPECT_EQ(c.params(Enhance).value(u"mode"_s), u"scale"_s);
            EXPECT_EQ(c.params(Enhance).value(u"scale"_s), 1);
        }
    }
}

TEST(Preset, WhatCannotBeAppliedLeavesNothingBehind) {
    Presets c;
    c.put(Denoise, "");
    EXPECT_TRUE(c.flag("presetApplied") && c.flag("presetAppliedNoModifications"));
    c.put(
        R"({ "RAW": { "category": "RAW" }, "Inpaint2": { "category": "Inpaint" }, "F": { "category": "Gone" },
               "odd": 5 })",
        "RAW Inpaint2 F odd missing");
    EXPECT_TRUE(c.filterOrder().isEmpty());
    for (const char *name : {"RAW", "Inpaint", "Inpaint2", "F", "Gone", "odd", "missing", ""})
        EXPECT_FALSE(c.currentControls().contains(QString::fromLatin1(name))) << name;
    EXPECT_EQ(c.applyPresetToImage(u"/gone.jpg"_s, {}, {}, true).value(u"message"_s),
              u"Image does not exist"_s);
    EXPECT_EQ(c.size(), 3);
}

TEST(Preset, ValuesAreBoundedByTheCatalogue) {
    struct Row {
        const char *filter, *taken;
        int problems;
    };
    const Row rows[] = {
        {R"({ "params": { "p": 0.5, "x": "kept" } })", R"({ "params": { "p": 0.5, "x": "kept" } })", 0},
        {R"({ "params": { "p": 99 } })", R"({ "params": { "p": 1 } })", 1},
        {R"({ "params": { "p": -3 }, "p": 7 })", R"({ "params": { "p": 0 }, "p": 1 })", 2},
        {R"({ "params": { "p": 0 } })", R"({ "params": { "p": 0 } })", 0},
        {R"({ "params": { "p": "1", "q": [1] } })", R"({ "params": {} })", 2},
        {R"({ "model": "Gone", "params": { "q": 4 } })", R"({ "model": "Fine", "params": { "q": 1 } })", 2},
        {R"({ "model": "", "params": 4 })", R"({ "params": {} })", 0},
        {R"({ "category": "Sharpen", "isLens": 1 })", R"({ "category": "Sharpen" })", 1},
        {R"({ "category": "Enhance", "mode": "big", "scale": 0, "width": 1e9, "height": "x" })",
         R"({ "category": "Enhance", "scale": 0.2, "width": 32000 })", 4},
    };
    for (const Row &row : rows) {
        QVariantMap filter = json(row.filter);
        const QString category = filter.value(u"category"_s, D).toString();
        const ParameterBounds::Bounded fit =
            ParameterBounds::bounded(filter, catalogue().value(category).toMap(), u"Fine"_s);
        EXPECT_EQ(fit.filter, json(row.taken)) << row.filter;
        EXPECT_EQ(fit.problems.size(), row.problems) << fit.problems.join(u'\n').toStdString();
    }
    const QVariantMap endless = {{u"x"_s, std::numeric_limits<double>::infinity()}};
    EXPECT_TRUE(ParameterBounds::bounded(endless, {}).filter.isEmpty());

    Presets c;
    c.put(R"({ "D": { "category": "Denoise", "model": "Gone", "params": { "p": 99 } } })", "D");
    EXPECT_EQ(filterOf(c, D).value(u"model"_s), u"Fine"_s);
    EXPECT_EQ(c.params(D).value(u"p"_s), 1);
    const QVariantMap host =
        json(R"({ "autoPilot": 0, "D": { "category": "Denoise", "params": { "p": 9 } } })");
    EXPECT_EQ(c.boundedControls(host),
              json(R"({ "autoPilot": 0, "D": { "category": "Denoise", "params": { "p": 1 } } })"));
}

TEST(Preset, NormalOrders) {
    const std::pair<const char *, const char *> rows[] = {
        {"", ""},
        {"Enhance Denoise RAW", "RAW Denoise Enhance"},
        {"Denoise Denoise2 Denoise", "Denoise Denoise2"},
        {"Sharpen RAW Enhance RAW Inpaint Enhance", "RAW Sharpen Inpaint Enhance"},
    };
    for (const auto &[order, normal] : rows) {
        const QStringList names = QString::fromLatin1(order).split(u' ', Qt::SkipEmptyParts);
        EXPECT_EQ(TControls().normalisedOrder(names).join(u' ').toStdString(), normal);
    }
}
