#include "ControllerTest.h"

#include <QTemporaryFile>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

class Analysis : public ControllerTest {
protected:
    QStringList steps() const {
        QStringList steps;
        for (const auto &arguments : problems)
            steps << arguments.at(1).toMap().value(u"currentStep"_s).toString();
        return steps;
    }

    QSignalSpy finished{controller.get(), &TEngineController::autoPilotFinished};
    QSignalSpy problems{controller.get(), &TEngineController::autoProblemsUpdated};
};

TEST_F(Analysis, AnswersWithUidSettingsAndProblems) {
    engine->onAnalyse = [](const EngineInput &, const AutopilotOptions &, const RunControl &control) {
        control.report(0.1, u"faces"_s);
        control.report(0.2, u"counting tiles"_s);
        AutopilotAnswer answer;
        answer.settings = {{u"Denoise"_s, QVariantMap{{u"enabled"_s, true}}}};
        answer.problems = {{u"faceCount"_s, 2}};
        return answer;
    };
    controller->setFaceStrength(17);
    controller->autoPilot(imageMap(), {{u"regenerateMask"_s, true}});
    controller->setFaceStrength(18);
    ASSERT_TRUE(finished.wait());
    EXPECT_EQ(finished.at(0).at(0).toString(), u"/pictures/a.jpg#1"_s);
    EXPECT_TRUE(finished.at(0).at(1).toMap().contains(u"Denoise"_s));
    EXPECT_EQ(steps(), QStringList({u"faces"_s, u"done"_s}));
    EXPECT_EQ(problems.back().at(1).toMap().value(u"faceCount"_s).toInt(), 2);
    const AutopilotOptions options = engine->analyses().front().second;
    EXPECT_TRUE(options.regenerateMask);
    EXPECT_FALSE(options.forceFaceDetect);
    EXPECT_EQ(options.preferences.faceStrength, 17) << "taken by value";
}

TEST_F(Analysis, NewestRequestAloneAnswers) {
    engine->analysisHold.close();
    for (const QString &path : {u"/a"_s, u"/b"_s, u"/c"_s}) {
        controller->autoPilot(imageMap(path));
        eventually([this] { return !engine->analyses().empty(); });
    }
    engine->analysisHold.open();
    ASSERT_TRUE(finished.wait());
    settle();
    ASSERT_EQ(finished.size(), 1);
    EXPECT_EQ(finished.at(0).at(0).toString(), u"/c#1"_s);
}

TEST_F(Analysis, RunsBesideProcessingAndSurvivesItsCancelling) {
    engine->processHold.close();
    engine->analysisHold.close();
    controller->startProc(imageMap(), QRect(0, 0, 1, 1), {}, {}, false);
    controller->autoPilot(imageMap());
    ASSERT_TRUE(eventually([this] { return !engine->requests().empty() && !engine->analyses().empty(); }));
    QSignalSpy canceled(controller.get(), &TEngineController::canceled);
    controller->cancelProc();
    ASSERT_TRUE(canceled.wait());
    engine->analysisHold.open();
    EXPECT_TRUE(finished.wait());
}

TEST_F(Analysis, FailureAnswersWithEmptySettings) {
    struct Row {
        const char *name;
        AutopilotAnswer answer;
        QVariantMap image;
    };
    for (const Row &row :
         {Row{"engine's error", {.error = u"No face model."_s}, imageMap()},
          Row{"stopped by itself", {.cancelled = true}, imageMap()}, Row{"no picture", {}, {}}}) {
        SCOPED_TRACE(row.name);
        finished.clear();
        engine->advice = row.answer;
        engine->advice.settings = {{u"Denoise"_s, true}};
        controller->autoPilot(row.image);
        ASSERT_TRUE(finished.wait());
        EXPECT_TRUE(finished.at(0).at(1).toMap().isEmpty());
        EXPECT_FALSE(controller->error().isEmpty());
    }
}

TEST_F(Analysis, EngineWithoutSelectionsAnswersEmpty) {
    QSignalSpy mask(controller.get(), &TEngineController::maskGenerated);
    QSignalSpy hover(controller.get(), &TEngineController::subjectMaskHoverUpdated);
    QSignalSpy pixels(controller.get(), &TEngineController::superpixelsGenerated);
    QSignalSpy box(controller.get(), &TEngineController::boundingBoxCalculated);
    controller->editSubjectMask(imageMap(), {});
    controller->updateSelectionMaskHover(imageMap(), {}, QPointF(1, 1));
    controller->generateSuperpixels(imageMap(), 0.25);
    controller->calculateBoundingBox(imageMap(), {});
    controller->cacheSamEncoder(imageMap());
    EXPECT_TRUE(controller->preCachingPostProcModels());
    ASSERT_TRUE(eventually([&] { return !controller->preCachingPostProcModels(); }));
    ASSERT_EQ(mask.size() + hover.size() + pixels.size() + box.size(), 4);
    EXPECT_EQ(mask.at(0).at(0).toString(), u"/pictures/a.jpg#1"_s);
    EXPECT_EQ(pixels.at(0).at(1).toDouble(), 0.25);
    EXPECT_TRUE(box.at(0).at(0).toRectF().isEmpty());
}

TEST_F(Analysis, InstallerHashIsEmptyUnlessThereIsACopy) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("abc");
    file.close();
    QSignalSpy hash(controller.get(), &TEngineController::hashCalculated);
    const QString url = QUrl::fromLocalFile(file.fileName()).toString();
    controller->hashInstaller(url);
    controller->hashInstaller(u"https://example.org/none"_s);
    ASSERT_TRUE(eventually([&] { return hash.size() == 2; }));
    EXPECT_EQ(hash.at(0),
              QVariantList({url, u"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"_s}));
    EXPECT_EQ(hash.at(1), QVariantList({u"https://example.org/none"_s, QString()}));
}

} // namespace
