#include "AdviceCase.h"

#include <functional>

using namespace AdviceCase;

TEST(Advice, EachPreferenceSaysWhatItSays) {
    struct Row {
        const char *name;
        double noise;
        double blur;
        std::function<void(Case &)> prefer;
        const char *category;
        bool enabled;
        const char *model = nullptr; ///< any
    };
    using P = Autopilot::Preferences;
    using S = ImageStatistics;
    const auto set = [](auto P::*field, auto value) {
        return [field, value](Case &c) { c.preferences().*field = value; };
    };
    const auto as = [&](auto P::*field, const char *value) { return set(field, words(value)); };
    const auto levels = [&](auto P::*field, const char *list) {
        return set(field, QString::fromLatin1(list).split(u',', Qt::SkipEmptyParts));
    };
    const auto found = [](auto S::*field, auto value) {
        return [=](Case &c) { c.statistics.*field = value; };
    };
    const auto none = [](Case &) {};
    const auto raw = [](Case &c) { c.input.isRaw = true; };
    const auto both = [](auto a, auto b) { return [=](Case &c) { a(c), b(c); }; };
    const auto noNoise = levels(&P::denoiseLevels, "");
    const auto kind = [](BlurKind wanted, float radius, float length) {
        return [=](Case &c) {
            c.statistics.blurKind = wanted;
            c.statistics.defocusRadius = radius;
            c.statistics.motionLength = length;
        };
    };
    const auto light = [&](float median, float high) {
        return both(found(&S::lumaMedian, median), found(&S::lumaHigh, high));
    };
    const auto cast = [&](float confidence) {
        return both(found(&S::illuminant, std::array{1.4f, 1.0f, 0.6f}),
                    found(&S::castConfidence, confidence));
    };
    const Row rows[] = {
        {"clean", 0.5, 0.6, none, "Denoise", false},
        {"clean, sharpen", 0.5, 0.6, none, "Sharpen", false},
        {"low noise is left by default", 2.2, 0.6, none, "Denoise", false},
        {"medium noise", 6, 0.6, none, "Denoise", true, "Low Light Beta"},
        {"severe noise", 30, 0.6, none, "Denoise", true, "Severe Noise Beta"},
        {"extreme noise", 60, 0.6, none, "Denoise", true, "Severe Noise"},
        {"low noise on request", 2.2, 0.6, levels(&P::denoiseLevels, "low,medium"), "Denoise", true},
        {"only severe noise", 15, 0.6, levels(&P::denoiseLevels, "severe"), "Denoise", false},
        {"noise always off", 60, 0.6, levels(&P::denoiseLevels, ""), "Denoise", false},
        {"forced model", 6, 0.6, as(&P::denoisingModel, "Severe Noise"), "Denoise", true, "Severe Noise"},
        {"raw, all levels", 0.5, 0.6, both(raw, levels(&P::denoiseRawLevels, "low,medium,high,severe")),
         "RAW", true, "RAW Native"},
        {"raw, medium and above", 0.5, 0.6, both(raw, levels(&P::denoiseRawLevels, "medium,high,severe")),
         "RAW", false, "RAW Native"},
        {"raw, severe", 30, 0.6, raw, "RAW", true, "RAW Standard"},
        {"raw, forced model", 6, 0.6, both(raw, as(&P::denoisingRawModel, "RAW Standard")), "RAW", true,
         "RAW Standard"},
        {"raw without a mosaic", 6, 0.6,
         both(raw, [](Case &c) { c.input.metadata.insert(words("linearRaw"), true); }), "RAW", true,
         "Linear RAW"},
        {"soft is left by default", 0.5, 1.0, none, "Sharpen", false},
        {"soft on request", 0.5, 1.0, levels(&P::sharpenBlurs, "low"), "Sharpen", true},
        {"blurry", 0.5, 1.6, none, "Sharpen", true, "Sharpen Standard v2"},
        {"very blurry", 0.5, 3, none, "Sharpen", true, "Sharpen Strong"},
        {"blurry, kind open", 0.5, 1.6, kind(BlurKind::Unknown, 0, 0), "Sharpen", true, "Sharpen Strong"},
        {"edges soft by nature", 0.5, 1.6, found(&S::softness, 0.3f), "Sharpen", false},
        {"sharp edges, missing detail", 0.5, 1.0, found(&S::softness, 1.8f), "Sharpen", true},
        {"noise over the detail: edges alone", 5, 1.6, both(noNoise, found(&S::softness, 0.0f)), "Sharpen",
         true},
        {"out of focus", 0.5, 0.6, kind(BlurKind::Defocus, 4, 0), "Sharpen", true, "Sharpen Standard"},
        {"hardly out of focus", 0.5, 0.6, kind(BlurKind::Defocus, 2, 0), "Sharpen", false},
        {"smeared", 0.5, 0.6, kind(BlurKind::Motion, 0, 6), "Sharpen", true, "Sharpen Standard"},
        {"hardly smeared", 0.5, 0.6, kind(BlurKind::Motion, 0, 4), "Sharpen", false},
        {"only very blurry", 0.5, 2, levels(&P::sharpenBlurs, "high"), "Sharpen", false},
        {"forced small blur", 0.5, 3, as(&P::sharpeningModel, "smallblur"), "Sharpen", true,
         "Sharpen Standard v2"},
        {"forced strong", 0.5, 1.6, as(&P::sharpeningModel, "strong"), "Sharpen", true, "Sharpen Strong"},
        {"forced lens blur", 0.5, 1.6, as(&P::sharpeningModel, "lensblur"), "Sharpen", true,
         "Sharpen Standard"},
        {"no edges to judge by", 0.5, 3, found(&S::edgeShare, 0.0005f), "Sharpen", false},
        {"little of both, noise prevails", 8, 1.5, none, "Sharpen", false},
        {"little of both, noise prevails: kept", 8, 1.5, none, "Denoise", true},
        {"little of both, blur prevails", 3.8, 2.2, none, "Denoise", false},
        {"little of both, prefer denoise", 3.8, 2.2, as(&P::conflictResolutionPref, "denoise"), "Sharpen",
         false},
        {"little of both, prefer sharpen", 8, 1.5, as(&P::conflictResolutionPref, "sharpen"), "Denoise",
         false},
        {"much of both, no conflict", 15, 3, as(&P::conflictResolutionPref, "sharpen"), "Denoise", true},
        {"dark", 0.5, 0.6, light(0.1f, 0.4f), "Exposure Adjust", true, "Exposure Standard"},
        {"dim wood, bright spots blurred away", 0.5, 0.6, light(0.14f, 0.52f), "Exposure Adjust", false},
        {"night with lamps", 0.5, 0.6, found(&S::lumaMedian, 0.1f), "Exposure Adjust", false},
        {"sure cast", 0.5, 0.6, cast(0.9f), "White Balance Adjust", true, "White Balance Standard"},
        {"unsure cast", 0.5, 0.6, cast(0.4f), "White Balance Adjust", false}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        Case c = with(row.noise, row.blur);
        row.prefer(c);
        ASSERT_TRUE(c.answer().settings.contains(words(row.category)));
        EXPECT_EQ(c.enabled(row.category), row.enabled);
        if (row.model) {
            EXPECT_EQ(c.model(row.category), words(row.model));
        }
    }
}

TEST(Advice, EveryParameterOfACategoryIsThereWhetherOnOrOff) {
    const QMap<QString, QString> keys = {
        {words("Denoise"),
         words("param1_normalv2 param2_normalv2 param1_strongv2 param2_strongv2 param1 param2 "
               "recover_detail auto")},
        {words("Sharpen"),
         words("param1 param2 isLens std_blur std_noise stg_blur stg_noise slens_blur slens_noise "
               "smot_blur smot_noise smb_blur smb_noise")},
        {words("Enhance"), words("mode scale width height resolution resolutionUnit param1 param2 param3")},
        {words("Exposure Adjust"), words("param1")},
        {words("White Balance Adjust"), words("temperature strength")}};
    for (const double noise : {0.5, 20.0}) {
        const AutopilotAnswer answer = with(noise, 0.6).answer();
        EXPECT_EQ(answer.settings.keys(), keys.keys());
        for (const QString &category : keys.keys()) {
            QStringList wanted = keys[category].split(u' ') << words("enabled") << words("model");
            wanted.sort();
            const QVariantMap entry = answer.settings[category].toMap();
            EXPECT_EQ(entry.keys(), wanted) << category.toStdString();
            for (const auto &[key, value] : entry.asKeyValueRange()) {
                if (key.startsWith(words("param")) || key.contains(u'_')) {
                    EXPECT_TRUE(value.toDouble() >= 0 && value.toDouble() <= 1) << key.toStdString();
                }
            }
        }
    }
    Case raw = with(20, 0.6);
    raw.input.isRaw = true;
    EXPECT_FALSE(raw.answer().settings.contains(words("Denoise")));
    for (const char *key : {"param1_native", "param2_native", "param3_native", "param1_standard",
                            "param2_standard", "param3_standard", "auto"})
        EXPECT_TRUE(raw.entry("RAW").contains(words(key))) << key;
}
