#include "Harness.h"
#include "NetworkFolder.h"

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

} // namespace

TEST(Cache, OnlyWhatChangedRuns) {
    const std::set<QString> none, both{u"Denoise"_s, u"Sharpen"_s}, sharpen{u"Sharpen"_s};
    Engine &engine = shippedEngine();
    const auto image = Pictures::noisy(*Pictures::scene(80, 60), 9);
    QRect region(0, 0, 80, 60);
    bool full = false;
    const auto ask = [&](double noise, double blur) {
        ProcRequest request = Engine::request(image);
        Engine::add(request, u"Denoise"_s, u"Denoise"_s, u"Low Light Beta"_s,
                    {{u"param1_normalv2"_s, noise}});
        Engine::add(request, u"Sharpen"_s, u"Sharpen"_s, u"Sharpen Strong"_s, {{u"param2"_s, blur}});
        request.region = region;
        request.full = full;
        return request;
    };
    EXPECT_EQ(stagesRun(engine, ask(0.3, 0.3)), both);
    EXPECT_EQ(stagesRun(engine, ask(0.3, 0.3)), none) << "nothing changed";
    EXPECT_EQ(stagesRun(engine, ask(0.3, 0.5)), sharpen) << "the last slider moved";
    EXPECT_EQ(stagesRun(engine, ask(0.3, 0.3)), none) << "and back";
    region = QRect(20, 20, 40, 30);
    EXPECT_EQ(stagesRun(engine, ask(0.3, 0.3)), none) << "a smaller view";
    EXPECT_EQ(stagesRun(engine, ask(0.6, 0.3)), both) << "the first slider moved";

    const auto cached = engine.run(ask(0.6, 0.3)).image;
    engine.backend->clearCache(ask(0.6, 0.3).input.uid);
    EXPECT_EQ(stagesRun(engine, ask(0.6, 0.3)), both) << "forgotten";
    EXPECT_EQ(Pictures::mismatch(*engine.run(ask(0.6, 0.3)).image, *cached, 0, 0), "");

    full = true;
    EXPECT_EQ(stagesRun(engine, ask(0.6, 0.2)), sharpen) << "an export may use what a preview left";
    EXPECT_EQ(stagesRun(engine, ask(0.6, 0.2)), sharpen) << "but leaves nothing itself";
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
