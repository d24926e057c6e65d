#include "Harness.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

/// Each slider changes the picture more the further it is moved, and at its least all but not at all.
TEST(Parameters, MonotoneForEveryModel) {
    Engine engine;
    const auto clean = Pictures::scene(112, 96);
    const auto image = Pictures::changed(*Pictures::noisy(*Pictures::blurred(*clean, 0.8), 7),
                                         [](double v, int, int, int c) { return v * (0.75 - 0.12 * c); });
    for (const ModelCase &model : everyModel(engine.catalogue)) {
        const QVariantMap ranges = engine.catalogue[model.category]
                                       .toMap()[model.model]
                                       .toMap()[u"gui"_s]
                                       .toMap()[u"parameters"_s]
                                       .toMap();
        for (auto it = ranges.begin(); it != ranges.end(); ++it) {
            const QVariantMap range = it->toMap();
            if (!range.contains(u"max"_s) || it.key() == u"temperature"_s)
                continue; // a choice, or a scale with its neutral point in the middle
            SCOPED_TRACE(model.label() + ", " + it.key().toStdString());
            const auto at = [&](double value) {
                QVariantMap params = model.params;
                params[it.key()] = value;
                return engine.run(image, model.category, model.model, params).image;
            };
            const auto off = at(0);
            const double least = range[u"min"_s].toDouble(), most = range[u"max"_s].toDouble();
            if (least >= 0) {
                EXPECT_LT(Pictures::difference(*at(least), *off), 0.8);
            } else {
                EXPECT_GT(Pictures::difference(*at(least), *off), 0.5);
            }
            double before = 0;
            for (const double share : {0.25, 0.5, 0.75, 1.0}) {
                const double moved = Pictures::difference(*at(share * most), *off);
                EXPECT_GT(moved, before) << "at " << share * most;
                before = moved;
            }
            EXPECT_GT(before, 0.25) << "the slider does next to nothing";
        }
    }
}

/// Temperature runs from cool to warm through the neutral correction.
TEST(Parameters, TemperatureWarms) {
    Engine engine;
    const auto image = Pictures::scene(96, 64);
    double before = -1;
    for (const double t : {0.01, 0.25, 0.5, 0.75, 1.0}) {
        const auto out = engine.run(image, u"White Balance Adjust"_s, {}, {{u"temperature"_s, t}}).image;
        double red = 0, blue = 0;
        for (int x = 0; x < 96; ++x) {
            red += Pictures::sample(*out, x, 30, 0);
            blue += Pictures::sample(*out, x, 30, 2);
        }
        EXPECT_GT(red / blue, before);
        before = red / blue;
    }
}

TEST(Parameters, ReadWhateverComes) {
    struct Row {
        const char *name;
        QVariant given;
        QVariant same; ///< gives the same picture; invalid: the parameter left out
        bool logged;
    };
    const Row rows[] = {
        {"text", u" 0.5 "_s, 0.5, false},
        {"float", 0.5f, 0.5, false},
        {"int", 1, 1.0, false},
        {"too large", 17.0, 1.0, true},
        {"negative", -3, 0.0, true},
        {"not a number", std::numeric_limits<double>::quiet_NaN(), {}, true},
        {"infinite", std::numeric_limits<double>::infinity(), {}, true},
        {"word", u"strong"_s, {}, true},
        {"empty text", QString(), {}, true},
        {"list", QVariantList{1, 2}, {}, true},
        {"map", QVariantMap{{u"value"_s, 1}}, {}, true},
    };
    Engine engine;
    const auto image = Pictures::noisy(*Pictures::scene(80, 60), 12);
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        QVariantMap same;
        if (row.same.isValid())
            same[u"param1_normalv2"_s] = row.same;
        const auto expected = engine.run(image, u"Denoise"_s, u"Low Light Beta"_s, same).image;
        const LogCapture log;
        const auto out =
            engine.run(image, u"Denoise"_s, u"Low Light Beta"_s, {{u"param1_normalv2"_s, row.given}}).image;
        EXPECT_EQ(Pictures::mismatch(*out, *expected, 0, 0), "");
        EXPECT_EQ(log.count(u"param1_normalv2"_s), row.logged ? 1 : 0);
    }
}

TEST(Parameters, FlagsReadWhateverComes) {
    Engine engine;
    const auto image = Pictures::scene(80, 60);
    const auto run = [&](const QVariant &lens) {
        return engine
            .run(image, u"Sharpen"_s, u"Sharpen Standard"_s, {{u"param2"_s, 0.6}, {u"isLens"_s, lens}})
            .image;
    };
    const auto motion = run(false), lens = run(true);
    EXPECT_NE(Pictures::mismatch(*motion, *lens, 0, 0), "");
    for (const QVariant &value : {QVariant(u"true"_s), QVariant(1), QVariant(u"True"_s)})
        EXPECT_EQ(Pictures::mismatch(*run(value), *lens, 0, 0), "");
    for (const QVariant &value : {QVariant(u"false"_s), QVariant(0), QVariant(u"perhaps"_s), QVariant()})
        EXPECT_EQ(Pictures::mismatch(*run(value), *motion, 0, 0), "");
}
