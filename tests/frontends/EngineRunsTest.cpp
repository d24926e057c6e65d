#include "ControllerTest.h"
#include "system/DiskSpaceWatch.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

class EngineRuns : public ControllerTest {
protected:
    EngineRuns() {
        // The disk of the machine that runs the tests is no concern of theirs.
        QSettings().setValue(u"checkDiskSpace"_s, false);
        QObject::connect(controller.get(), &TEngineController::procResultChanged, controller.get(), [this] {
            answers << u"result "_s + controller->procResult().value(u"requestUid"_s).toString();
        });
        QObject::connect(controller.get(), &TEngineController::canceled, controller.get(),
                         [this] { answers << u"canceled"_s; });
        QObject::connect(controller.get(), &TEngineController::procError, controller.get(),
                         [this](const QString &msg) { answers << u"error "_s + msg; });
    }

    void start(const QVariantMap &params = {}, bool full = false) {
        controller->startProc(imageMap(), QRect(1, 2, 3, 4), params, {u"Denoise"_s}, full);
    }
    bool idle() {
        return eventually([this] { return !controller->processing(); });
    }
    bool ran() {
        start();
        return idle();
    }

    QStringList answers;
};

TEST_F(EngineRuns, ResultCarriesWhatItStandsFor) {
    EXPECT_EQ(controller->procResult().value(u"requestUid"_s).toInt(), 0);
    for (const auto &[name, full, exporting, exported] :
         {std::tuple("preview", false, false, false), std::tuple("batch", true, false, true),
          std::tuple("window's export", false, true, true)}) {
        SCOPED_TRACE(name);
        controller->setExporting(exporting);
        start({{u"changesCount"_s, 7}}, full);
        ASSERT_TRUE(controller->processing());
        ASSERT_TRUE(idle());
        const QVariantMap result = controller->procResult();
        EXPECT_EQ(result.value(u"requestRoi"_s).toRect(), QRect(1, 2, 3, 4));
        EXPECT_EQ(result.value(u"changesCount"_s).toInt(), 7);
        EXPECT_EQ(result.value(u"filepath"_s).toString(), u"/pictures/a.jpg"_s);
        EXPECT_EQ(result.value(u"export"_s).toBool(), exported);
        EXPECT_TRUE(result.value(u"image"_s).value<std::shared_ptr<ImageData>>());
        EXPECT_EQ(controller->progress(), 1);
    }
    EXPECT_EQ(answers, QStringList({u"result 1"_s, u"result 2"_s, u"result 3"_s}));
}

TEST_F(EngineRuns, WindowAsksWithItsOwnInputAndParams) {
    controller->setInputImage(imageMap(u"/pictures/b.jpg"_s));
    controller->setParams({{u"changesCount"_s, 3}});
    controller->procRequest(QRectF(0.6, 1, 2, 2.2), {u"Sharpen"_s});
    controller->setParams({{u"changesCount"_s, 4}});
    ASSERT_TRUE(idle());
    ASSERT_EQ(engine->requests().size(), 1u);
    const ProcRequest request = engine->requests().front();
    EXPECT_EQ(request.input.filepath, u"/pictures/b.jpg"_s);
    EXPECT_EQ(request.params.value(u"changesCount"_s).toInt(), 3) << "taken by value";
    EXPECT_EQ(request.region, QRect(0, 1, 3, 3)) << "covers the region asked for";
    EXPECT_EQ(request.filterOrder, QStringList(u"Sharpen"_s));
    EXPECT_FALSE(request.hotPixelCorrection);
    QSettings().setValue(u"hotPixelCorrection"_s, true);
    controller->procRequest(QRectF(0, 0, 1, 1), {});
    QSettings().remove(u"hotPixelCorrection"_s);
    ASSERT_TRUE(idle());
    EXPECT_TRUE(engine->requests().back().hotPixelCorrection)
        << "as the store says when the run is asked for";
}

TEST_F(EngineRuns, OneAnswerForEachRequestInOrder) {
    engine->processHold.close();
    start();
    ASSERT_TRUE(eventually([this] { return engine->requests().size() == 1; }));
    start(); // cancels the first
    controller->cancelProc();
    start();
    engine->processHold.open();
    ASSERT_TRUE(idle());
    settle();
    EXPECT_EQ(answers, QStringList({u"canceled"_s, u"canceled"_s, u"result 3"_s}));
}

TEST_F(EngineRuns, CancellingNothingIsSilent) {
    controller->cancelProc();
    settle();
    EXPECT_TRUE(answers.isEmpty());
    ASSERT_TRUE(ran());
    controller->cancelProc();
    settle();
    EXPECT_EQ(answers, QStringList(u"result 1"_s));
}

TEST_F(EngineRuns, ResultThatWasReadyWhenCancelledIsNotPublished) {
    std::atomic<bool> done = false;
    engine->onProcess = [&](const ProcRequest &request, const RunControl &) {
        done = true;
        return ProcResult{.image = std::const_pointer_cast<ImageData>(request.input.image)};
    };
    start();
    while (!done)
        std::this_thread::yield();
    controller->cancelProc();
    ASSERT_TRUE(idle());
    EXPECT_EQ(answers, QStringList(u"canceled"_s));
    EXPECT_EQ(controller->procResult().value(u"requestUid"_s).toInt(), 0);
}

TEST_F(EngineRuns, FailureStandsUntilARunSucceeds) {
    engine->onProcess = [](const ProcRequest &, const RunControl &) {
        return ProcResult{.error = u"No memory."_s};
    };
    ASSERT_TRUE(ran());
    EXPECT_EQ(controller->error(), u"No memory."_s);
    engine->onProcess = nullptr;
    start();
    EXPECT_EQ(controller->error(), u"No memory."_s);
    ASSERT_TRUE(idle());
    EXPECT_EQ(controller->error(), QString());
    controller->startProc({}, QRect(0, 0, 1, 1), {}, {}, true);
    ASSERT_TRUE(idle());
    EXPECT_EQ(answers, QStringList({u"error No memory."_s, u"result 2"_s,
                                    u"error There is no picture to process."_s}));
}

TEST_F(EngineRuns, NextRunMayBeAskedForFromTheAnswer) {
    QObject::connect(controller.get(), &TEngineController::procResultChanged, controller.get(), [this] {
        EXPECT_FALSE(controller->processing())
            << "the export decides by this whether an answer is still to come";
        if (answers.size() == 1)
            start();
    });
    start();
    ASSERT_TRUE(eventually([this] { return answers.size() == 2; }));
    EXPECT_EQ(answers, QStringList({u"result 1"_s, u"result 2"_s}));
}

TEST_F(EngineRuns, ProgressIsThinnedAndArrivesOnTheMainThread) {
    std::vector<double> seen;
    const QThread *mainThread = QThread::currentThread();
    QObject::connect(controller.get(), &TEngineController::progressChanged, controller.get(), [&] {
        EXPECT_EQ(QThread::currentThread(), mainThread);
        seen.push_back(controller->progress());
    });
    engine->onProcess = [](const ProcRequest &request, const RunControl &control) {
        std::vector<std::jthread> workers;
        for (int worker = 0; worker < 2; ++worker)
            workers.emplace_back([&control] {
                for (int i = 1; i <= 5000; ++i)
                    control.report(i / 5001.0, u"Denoise"_s);
            });
        workers.clear();
        return ProcResult{.image = std::const_pointer_cast<ImageData>(request.input.image)};
    };
    QSignalSpy status(controller.get(), &TEngineController::statusChanged);
    ASSERT_TRUE(ran());
    EXPECT_LT(seen.size(), 500u);
    EXPECT_EQ(seen.back(), 1);
    EXPECT_EQ(status.size(), 2) << "set by the first report, cleared at the end";
    EXPECT_TRUE(controller->status().isEmpty());
}

TEST_F(EngineRuns, DestructionStopsEverythingAndStaysSilent) {
    engine->processHold.close();
    engine->analysisHold.close();
    start();
    controller->autoPilot(imageMap());
    controller->setModelDirectory(u"models"_s);
    controller->hashInstaller(u"https://example.org/setup"_s);
    controller->cacheSamEncoder(imageMap());
    ASSERT_TRUE(eventually([this] { return engine->requests().size() + engine->analyses().size() == 2; }));
    QSignalSpy finished(controller.get(), &TEngineController::autoPilotFinished);
    controller.reset();
    settle();
    EXPECT_TRUE(answers.isEmpty());
    EXPECT_EQ(finished.size(), 0);
}

TEST_F(EngineRuns, CatalogueIsAlwaysAnnounced) {
    const QVariantMap none, some{{u"Denoise"_s, QVariantMap()}};
    for (const auto &[name, models, directory, announcements] :
         {std::tuple("first, unchanged and empty", none, QString(), 1),
          std::tuple("same again", none, QString(), 0), std::tuple("another folder", some, u"models"_s, 1)}) {
        SCOPED_TRACE(name);
        engine->models = models;
        QSignalSpy announced(controller.get(), &TEngineController::modelParamInfoChanged);
        controller->setModelDirectory(directory);
        EXPECT_EQ(announced.size(), 0) << "not before the caller can listen";
        eventually([&] { return announced.size() == announcements; });
        settle();
        EXPECT_EQ(announced.size(), announcements);
        EXPECT_EQ(controller->modelParamInfo(), models);
    }
}

TEST(EngineController, WithoutEngineEveryRequestIsAnswered) {
    TEngineController controller;
    QSignalSpy catalogue(&controller, &TEngineController::modelParamInfoChanged);
    QSignalSpy error(&controller, &TEngineController::procError);
    QSignalSpy advice(&controller, &TEngineController::autoPilotFinished);
    controller.setModelDirectory(u"nowhere"_s);
    controller.startProc(imageMap(), QRect(0, 0, 1, 1), {}, {}, true);
    controller.autoPilot(imageMap());
    ASSERT_TRUE(eventually([&] { return catalogue.size() + error.size() + advice.size() == 3; }));
    EXPECT_EQ(error.at(0).at(0).toString(), u"No processing engine is available."_s);
    EXPECT_TRUE(advice.at(0).at(1).toMap().isEmpty());
}

TEST(EngineController, BackEndsComeFromTheFactory) {
    int made = 0;
    TEngineController::setBackendFactory([&made] {
        ++made;
        return std::make_unique<FakeEngine>();
    });
    {
        TEngineController controller;
        QSignalSpy result(&controller, &TEngineController::procResultChanged);
        controller.startProc(imageMap(), QRect(0, 0, 1, 1), {}, {}, true);
        EXPECT_TRUE(result.wait());
    }
    TEngineController::setBackendFactory(nullptr);
    EXPECT_EQ(made, 1);
}

TEST(DiskSpace, EachLevelIsReportedOnceForEachVolume) {
    qint64 bytesFree = 0;
    DiskSpaceWatch watch(
        [&](const QString &folder) { return DiskSpaceWatch::Volume{folder, u"Disk"_s, bytesFree}; });
    struct Row {
        const char *name;
        qint64 bytesFree;
        const char *warning;
        QString folder = u"/a"_s;
    };
    for (const Row &row :
         {Row{"unknown", -1, ""}, Row{"plenty", 5'000'000'000, ""}, Row{"low", 4'999'999'999, "low"},
          Row{"still low", 2'000'000'000, ""}, Row{"another of that name", 2'000'000'000, "low", u"/b"_s},
          Row{"critical", 999'999'999, "critical"}, Row{"full", 0, ""},
          Row{"the other, full", 0, "critical", u"/b"_s}}) {
        bytesFree = row.bytesFree;
        const auto warning = watch.check(row.folder);
        EXPECT_STREQ(!warning ? "" : warning->critical ? "critical" : "low", row.warning) << row.name;
    }
}

} // namespace
