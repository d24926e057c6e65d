#include "Harness.h"
#include "NetworkFolder.h"

#include <gtest/gtest.h>

#include <mutex>
#include <set>

using namespace Qt::StringLiterals;

namespace {

/// The stages that a preview of Denoise and Sharpen runs, by what it reports.
std::set<QString> stagesRun(Engine &engine, const ProcRequest &request) {
    std::mutex mutex;
    std::set<QString> stages;
    RunControl control;
    double last = 0;
    control.progress = [&](double fraction, const QString &stage) {
        const std::lock_guard lock(mutex);
        EXPECT_GE(fraction, last);
        EXPECT_LE(fraction, 1 + 1e-9);
        last = fraction;
        stages.insert(stage);
    };
    EXPECT_TRUE(engine.run(request, control).image);
    return stages;
}

void setStrength(ProcRequest &request, const QString &filter, const QString &key, double value) {
    QVariantMap map = request.params[filter].toMap();
    QVariantMap params = map[u"params"_s].toMap();
    params[key] = value;
    map[u"params"_s] = params;
    request.params[filter] = map;
}

} // namespace

TEST(Cache, OnlyWhatChangedRuns) {
    const std::set<QString> none, both{u"Denoise"_s, u"Sharpen"_s}, sharpen{u"Sharpen"_s};
    Engine &engine = shippedEngine();
    ProcRequest request = Engine::request(Pictures::noisy(*Pictures::scene(80, 60), 9));
    Engine::add(request, u"Denoise"_s, u"Denoise"_s, u"Low Light Beta"_s, {{u"param1_normalv2"_s, 0.3}});
    Engine::add(request, u"Sharpen"_s, u"Sharpen"_s, u"Sharpen Strong"_s, {{u"param2"_s, 0.3}});
    request.full = false;
    EXPECT_EQ(stagesRun(engine, request), both);
    EXPECT_EQ(stagesRun(engine, request), none) << "nothing changed";
    setStrength(request, u"Sharpen"_s, u"param2"_s, 0.5);
    EXPECT_EQ(stagesRun(engine, request), sharpen) << "the last slider moved";
    setStrength(request, u"Sharpen"_s, u"param2"_s, 0.3);
    EXPECT_EQ(stagesRun(engine, request), none) << "and back";
    request.region = QRect(20, 20, 40, 30);
    EXPECT_EQ(stagesRun(engine, request), none) << "a smaller view";
    setStrength(request, u"Denoise"_s, u"param1_normalv2"_s, 0.6);
    EXPECT_EQ(stagesRun(engine, request), both) << "the first slider moved";

    const auto cached = engine.run(request).image;
    engine.backend->clearCache(request.input.uid);
    EXPECT_EQ(stagesRun(engine, request), both) << "forgotten";
    EXPECT_EQ(Pictures::mismatch(*engine.run(request).image, *cached, 0, 0), "");

    request.full = true;
    setStrength(request, u"Sharpen"_s, u"param2"_s, 0.2);
    EXPECT_EQ(stagesRun(engine, request), sharpen) << "an export may use what a preview left";
    EXPECT_EQ(stagesRun(engine, request), sharpen) << "but leaves nothing itself";
}

TEST(Cache, BudgetAndIdentity) {
    const NetworkFolder folder;
    folder.defineRestorer(u"Net"_s, {});
    Engine small({1, 0, 100000}, folder.path());
    ProcRequest request = Engine::request(Pictures::scene(160, 120));
    Engine::add(request, u"Denoise"_s, u"Denoise"_s, u"Net"_s, {{u"strength"_s, 0.3}});
    request.full = false;
    EXPECT_EQ(stagesRun(small, request).size(), 1u);
    EXPECT_EQ(stagesRun(small, request).size(), 1u) << "115,200 bytes don't fit";

    Engine engine({}, folder.path());
    EXPECT_EQ(stagesRun(engine, request).size(), 1u);
    EXPECT_EQ(stagesRun(engine, request).size(), 0u);
    request.input.image = Pictures::noisy(*Pictures::scene(160, 120), 20);
    EXPECT_EQ(stagesRun(engine, request).size(), 1u) << "another picture under the same uid";
}
