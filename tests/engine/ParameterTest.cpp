#include "Harness.h"

#include <limits>

using namespace Qt::StringLiterals;

/// Each slider changes the picture more the further it is moved, and at its least all but not at all. The
/// middle is where all sliders of a model rest, so that one picture serves them all.
TEST(Parameters, MonotoneForEveryModel) {
    Engine &engine = shippedEngine();
    const auto clean = Pictures::scene(72, 56);
    const auto image = Pictures::changed(*Pictures::noisy(*Pictures::blurred(*clean, 0.8), 7),
                                         [](double v, int, int, int c) { return v * (0.75 - 0.12 * c); });
    for (const ModelCase &model : everyModel(engine.catalogue)) {
        const QVariantMap ranges = rangesOf(engine.catalogue, model.category, model.model);
        const auto middle = engine.run(image, model.category, model.model, model.params).image;
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
            const double half = Pictures::difference(*middle, *off);
            const double full = Pictures::difference(*at(most), *off);
            EXPECT_GT(half, 0);
            EXPECT_GT(full, half);
            EXPECT_GT(full, 0.25) << "the slider does next to nothing";
        }
    }
}

TEST(Parameters, ReadWhateverComes) {
    struct Row {
        const char *name;
        QVariant given;
        QVariant same; ///< gives the same picture; invalid: the parameter left out
        bool logged;
    };
    const Row numbers[] = {
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
    const Row flags[] = {
        {"yes", u"true"_s, true, false},
        {"capital yes", u"True"_s, true, false},
        {"one", 1, true, false},
        {"no", u"false"_s, false, false},
        {"zero", 0, false, false},
        {"another word", u"perhaps"_s, {}, true},
        {"no value", QVariant(), false, false},
    };
    Engine &engine = shippedEngine();
    const auto image = Pictures::noisy(*Pictures::scene(40, 30), 12);
    const auto check = [&](const Row &row, const QString &category, const QString &model, const QString &name,
                           QVariantMap params) {
        SCOPED_TRACE(row.name);
        params.insert(name, row.given);
        const LogCapture log;
        const auto out = engine.run(image, category, model, params).image;
        EXPECT_EQ(log.count(name), row.logged ? 1 : 0);
        row.same.isValid() ? void(params[name] = row.same) : void(params.remove(name));
        EXPECT_EQ(Pictures::mismatch(*out, *engine.run(image, category, model, params).image, 0, 0), "");
        return out;
    };
    for (const Row &row : numbers)
        check(row, u"Denoise"_s, u"Low Light Beta"_s, u"param1_normalv2"_s, {});
    std::vector<std::shared_ptr<const ImageData>> answers;
    for (const Row &row : flags)
        answers.push_back(check(row, u"Sharpen"_s, u"Sharpen Standard"_s, u"isLens"_s, {{u"param2"_s, 0.6}}));
    EXPECT_NE(Pictures::mismatch(*answers.front(), *answers.back(), 0, 0), "") << "lens or motion";
}
