#include "model/SettingsMatching.h"
#include "model/TCategorySettings.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

TCategorySettings sharpen(const QVariantMap &params = {{u"a"_s, 0.5}}, bool enabled = true) {
    return {u"Sharpen"_s, u"Strong"_s, params, enabled};
}

QVariantMap nested(const QVariantMap &params) {
    return {{u"params"_s, params}};
}

} // namespace

TEST(Records, Merge) {
    struct Row {
        const char *name;
        QVariantMap before;
        QVariantMap map;
        bool changed;
        QVariantMap after;
    };
    const QVariantMap a = {{u"a"_s, 0.5}};
    const QVariantMap ab = {{u"a"_s, 0.5}, {u"b"_s, 1}};
    const QVariantMap same = {{u"category"_s, u"Sharpen"_s}, {u"model"_s, u"Strong"_s}, {u"enabled"_s, true}};
    const Row rows[] = {
        {"empty into empty", {}, nested({}), true, {}},     {"into empty", {}, nested(a), true, a},
        {"same keys, same values", a, nested(a), true, a},  {"a key less, same", ab, nested(a), false, ab},
        {"a key more", a, nested({{u"b"_s, 1}}), true, ab}, {"nothing into some", a, nested({}), false, a},
        {"flat, equal", a, {{u"a"_s, 0.5}}, false, a},      {"flat, new", a, {{u"b"_s, 1}}, true, ab},
        {"the same fixed keys", a, same, false, a},         {"off", a, {{u"enabled"_s, false}}, true, a},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        TCategorySettings filter = sharpen(row.before);
        EXPECT_EQ(filter.merge(row.map), row.changed);
        EXPECT_EQ(filter.params, row.after);
    }
}

TEST(Records, Matching) {
    struct Row {
        const char *name;
        QVariantMap map;
        bool matches;
    };
    const Row rows[] = {
        {"anything against nothing", {}, true},
        {"off against on", {{u"enabled"_s, false}, {u"model"_s, u"Strong"_s}}, false},
        {"another model", {{u"model"_s, u"Weak"_s}}, false},
        {"flat parameters don't count", {{u"a"_s, 9}}, true},
        {"0.01 apart", nested({{u"a"_s, 0.51}}), true},
        {"0.02 apart", nested({{u"a"_s, 0.52}}), false},
        {"a key that is missing here", nested({{u"b"_s, 0}}), false},
        {"painted things", nested({{u"strokes"_s, 1}, {u"mask"_s, true}, {u"locked"_s, true}}), true},
        {"size of no upscale", nested({{u"scale"_s, 4}}), true},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(sharpen().matches(row.map), row.matches);
    }
    const QVariantMap off = {
        {u"enabled"_s, false}, {u"model"_s, u"Weak"_s}, {u"params"_s, QVariantMap{{u"a"_s, 9}}}};
    EXPECT_TRUE(sharpen({}, false).matches(off));
    EXPECT_TRUE(TCategorySettings().matches({{u"category"_s, u"RAW"_s}, {u"model"_s, u"Weak"_s}}));
}

TEST(Records, UpscaleSizes) {
    const auto scale = [](double factor, int width = 100) {
        return QVariantMap{{u"mode"_s, u"scale"_s}, {u"scale"_s, factor}, {u"width"_s, width}};
    };
    const auto match = [](const QVariantMap &own, const QVariantMap &given) {
        return TCategorySettings(u"Enhance"_s, {}, own, true).matches(nested(given));
    };
    EXPECT_TRUE(match(scale(2), scale(2.01)));
    EXPECT_FALSE(match(scale(2), {{u"mode"_s, u"width"_s}, {u"scale"_s, 2.0}})) << "another mode";
    EXPECT_TRUE(match(scale(6), scale(4, 32000))) << "cut off at the longest side";
    EXPECT_FALSE(match(scale(4), scale(6, 32000))) << "not cut off";
    EXPECT_TRUE(match(scale(0.1), scale(0.2))) << "raised to the smallest factor";
    EXPECT_FALSE(match(scale(0.1), scale(0.3))) << "above the smallest factor";
}

TEST(Records, FuzzyNumbers) {
    EXPECT_TRUE(fuzzyEquals(0.5, 0.505F));
    EXPECT_FALSE(fuzzyEquals(0.505F, 0.5)) << "the type of the first decides";
    EXPECT_FALSE(fuzzyEquals(1e300, 0.0));
    EXPECT_TRUE(fuzzyEquals(-0.004, 0.004));
}

TEST(Records, DenoiseFamilies) {
    const auto denoiseModel = [](const QString &model, double grain) {
        const QVariantMap params = {{u"param1_standard"_s, 0.3}, {u"param3_standard"_s, grain}};
        const QVariantMap map = TCategorySettings(u"RAW"_s, model, params, true).fromRawDenoise();
        EXPECT_EQ(map.value(u"params"_s).toMap().value(u"param1"_s), QVariant(0.3));
        return map.value(u"model"_s).toString().toStdString();
    };
    EXPECT_EQ(denoiseModel(u"RAW Native"_s, 1), "Low Light Beta");
    EXPECT_EQ(denoiseModel(u"RAW Standard"_s, 0.02), "Severe Noise");
    EXPECT_EQ(denoiseModel(u"RAW Standard"_s, 0.01), "Severe Noise Beta");
    EXPECT_EQ(denoiseModel(u"Linear RAW"_s, 1), "Severe Noise Beta");
    const TCategorySettings denoise(u"Denoise"_s, u"Severe Noise"_s, {{u"param2_strongv2"_s, 0.2}}, false);
    EXPECT_EQ(denoise.toRawDenoise().value(u"model"_s), u"RAW Standard"_s);
    EXPECT_EQ(denoise.toRawDenoise().value(u"params"_s).toMap().value(u"param2_standard"_s), QVariant(0.2));
}
