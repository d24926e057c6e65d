#include "Harness.h"

using namespace Qt::StringLiterals;

TEST(Requests, FailuresSayWhat) {
    const std::tuple<const char *, std::function<void(ProcRequest &)>, QString> rows[] = {
        {"no picture", [](ProcRequest &r) { r.input.image.reset(); }, u"no picture"_s},
        {"null picture", [](ProcRequest &r) { r.input.image = std::make_shared<ImageData>(); },
         u"no picture"_s},
        {"empty region", [](ProcRequest &r) { r.region = QRect(); }, u"outside"_s},
        {"region beside the picture", [](ProcRequest &r) { r.region = QRect(500, 0, 10, 10); }, u"outside"_s},
        {"unknown model", [](ProcRequest &r) { Engine::add(r, u"Sharpen"_s, u"Sharpen"_s, u"Razor"_s, {}); },
         u"\"Razor\""_s},
        {"unknown category", [](ProcRequest &r) { Engine::add(r, u"Sparkle3"_s, {}, {}, {}); },
         u"\"Sparkle\""_s},
    };
    Engine engine;
    for (const auto &[name, spoil, part] : rows) {
        ProcRequest request = Engine::request(Pictures::scene(40, 30));
        spoil(request);
        const ProcResult result = engine.run(request);
        EXPECT_FALSE(result.image) << name;
        EXPECT_FALSE(result.cancelled) << name;
        EXPECT_TRUE(result.error.contains(part)) << name << ": " << result.error.toStdString();
    }
}

/// Without a filter that works, the picture comes back as it was, clipped to the region.
TEST(Requests, WhatIsSkipped) {
    struct Row {
        const char *name;
        QString filter;
        QString category, model; ///< of the filter's record, where there is one
        int logged;
        bool enabled = true;
    };
    const Row rows[] = {
        {"nothing asked", {}, {}, {}, 0},
        {"disabled, even with an unknown model", u"Denoise"_s, u"Denoise"_s, u"Nonsense"_s, 0, false},
        {"no record", u"Sharpen2"_s, {}, {}, 0},
        {"faces", u"Face Recovery"_s, u"Face Recovery"_s, u"Any"_s, 1},
        {"text", u"Text Recovery"_s, u"Text Recovery"_s, u"Text Refine"_s, 1},
        {"removal", u"Inpaint2"_s, u"Inpaint"_s, {}, 1},
    };
    Engine engine;
    auto image = Pictures::scene(60, 40, 4, SampleType::UInt16);
    image->setIccProfile("a profile");
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        ProcRequest request = Engine::request(image);
        request.region = QRect(-20, 25, 50, 100);
        if (!row.category.isEmpty())
            Engine::add(request, row.filter, row.category, row.model, {}, row.enabled);
        request.filterOrder = row.filter.isEmpty() ? QStringList() : QStringList{row.filter, row.filter};
        const LogCapture log;
        const ProcResult result = engine.run(request);
        ASSERT_TRUE(result.image) << result.error.toStdString();
        EXPECT_EQ(result.region, QRect(0, 25, 30, 15));
        EXPECT_EQ(result.scale, 1);
        EXPECT_EQ(Pictures::mismatch(*result.image, *image, 0, 25), "");
        EXPECT_EQ(result.image->iccProfile(), image->iccProfile());
        EXPECT_EQ(log.count(u"[ENGINE]"_s), row.logged);
    }
}

TEST(Requests, NamesOrderAndSubjects) {
    Engine engine;
    auto image = Pictures::noisy(*Pictures::scene(80, 60), 15);
    image->setIccProfile("a profile");
    const QVariantMap noise{{u"param1_normalv2"_s, 0.4}}, sharp{{u"param2"_s, 0.6}};
    const auto stack = [&](const QStringList &order, const QString &category) {
        ProcRequest request = Engine::request(image);
        Engine::add(request, u"Denoise2"_s, category, u"Low Light Beta"_s, noise);
        Engine::add(request, u"Sharpen"_s, u"Sharpen"_s, u"Sharpen Strong"_s, sharp);
        request.filterOrder = order;
        return engine.run(request).image;
    };
    const auto there = stack({u"Denoise2"_s, u"Sharpen"_s}, u"Denoise"_s);
    EXPECT_EQ(there->iccProfile(), image->iccProfile());
    EXPECT_EQ(Pictures::mismatch(*stack({u"Denoise2"_s, u"Sharpen"_s}, {}), *there, 0, 0), "")
        << "category from name";
    EXPECT_NE(Pictures::mismatch(*stack({u"Sharpen"_s, u"Denoise2"_s}, u"Denoise"_s), *there, 0, 0), "");

    ProcRequest request = Engine::request(image);
    for (const QString &name : {u"Denoise"_s, u"Denoise2"_s}) {
        Engine::add(request, name, u"Denoise"_s, u"Low Light Beta"_s, noise);
        QVariantMap map = request.params[name].toMap();
        map[u"subjectSettings"_s] = QVariantMap{{u"model"_s, name == u"Denoise"_s ? u"Sky"_s : u"All"_s}};
        request.params[name] = map;
    }
    const LogCapture log;
    ASSERT_TRUE(engine.run(request).image);
    EXPECT_EQ(log.count(u"whole picture"_s), 1);
}

/// The window shows these while they go on: the measuring takes the time, and is not over when it begins.
TEST(Requests, AnalysisSaysWhatItIsAt) {
    QStringList stages;
    RunControl control;
    control.progress = [&stages](double, const QString &stage) { stages.append(stage); };
    Engine engine;
    const ProcRequest request = Engine::request(Pictures::scene(60, 40));
    EXPECT_FALSE(engine.backend->analyse(request.input, {}, control).problems.empty());
    EXPECT_EQ(stages, QStringList({u"params"_s, u"final"_s, u"done"_s}));
}
