#include "AdviceCase.h"
#include "Scenes.h"

#include <QJsonDocument>

#include <atomic>
#include <chrono>
#include <cmath>
#include <ctime>
#include <thread>

using namespace Scenes;

namespace {

void expectFinite(const ImageStatistics &s) {
    for (const float value :
         {s.noise[0],    s.noise[1],      s.noise[2],      s.lumaNoise,     s.chromaNoise,   s.chromaBlotches,
          s.grainSize,   s.blur,          s.softness,      s.defocusRadius, s.motionLength,  s.motionAngle,
          s.edgeShare,   s.blockiness,    s.lumaLow,       s.lumaMedian,    s.lumaHigh,      s.clippedLow,
          s.clippedHigh, s.illuminant[0], s.illuminant[1], s.illuminant[2], s.castConfidence})
        EXPECT_TRUE(std::isfinite(value));
    EXPECT_GE(s.jpegQuality, 1);
    EXPECT_LE(s.jpegQuality, 100);
}

AutopilotAnswer answerFor(const std::shared_ptr<ImageData> &image, const ImageStatistics &statistics) {
    EngineInput input;
    input.image = image;
    return analyseImage(input, statistics, AdviceCase::shippedModels(), {}, {});
}

} // namespace

TEST(Hostile, EveryPictureGetsAFiniteAnswerAndUnspoiltOnesAreLeftAlone) {
    const std::tuple<const char *, Picture> rows[] = {
        {"one pixel", flat(1, 1, {0.3f, 0.5f, 0.7f})},
        {"three by three", noisy(flat(3, 3, {0.5f, 0.5f, 0.5f}), 30)},
        {"a row", flat(500, 1, {0.2f, 0.2f, 0.2f})},
        {"a column", flat(1, 500, {0.2f, 0.2f, 0.2f})},
        {"narrow", still(1200, 9)},
        {"black", flat(300, 200, {0, 0, 0})},
        {"white", flat(300, 200, {1, 1, 1})},
        {"grey", flat(300, 200, {0.5f, 0.5f, 0.5f})},
        {"saturated red", flat(300, 200, {1, 0, 0})},
        {"slopes and edges", still(320, 240)}};
    for (const auto &[name, picture] : rows) {
        for (const SampleType type : {SampleType::UInt8, SampleType::UInt16}) {
            SCOPED_TRACE(std::string(name) + (type == SampleType::UInt8 ? ", 8 bit" : ", 16 bit"));
            const auto data = image(picture, type);
            const ImageStatistics s = measureImage(*data, {});
            expectFinite(s);
            const AutopilotAnswer answer = answerFor(data, s);
            ASSERT_TRUE(answer.error.isEmpty());
            // Not a number would be null there.
            const QByteArray text = QJsonDocument::fromVariant(answer.settings).toJson();
            EXPECT_FALSE(text.contains("null")) << text.toStdString();
            for (const QString &category : answer.settings.keys()) {
                const bool enabled = answer.settings[category].toMap()[QStringLiteral("enabled")].toBool();
                EXPECT_FALSE(enabled && category != QStringLiteral("Enhance")) << category.toStdString();
            }
        }
    }
}

TEST(Hostile, DepthAndAlphaDoNotMatterAndAnswersRepeat) {
    const Picture picture = noisy(blurred(still(400, 300), 1.5), 12);
    const ImageStatistics plain = measureImage(*image(picture), {});
    const ImageStatistics again = measureImage(*image(picture), {});
    const ImageStatistics alpha = measureImage(*image(picture, SampleType::UInt8, 4), {});
    const ImageStatistics deep = measureImage(*image(picture, SampleType::UInt16), {});
    for (const ImageStatistics &other : {again, alpha}) {
        EXPECT_EQ(plain.noise, other.noise);
        EXPECT_EQ(plain.blur, other.blur);
        EXPECT_EQ(plain.illuminant, other.illuminant);
    }
    EXPECT_NEAR(plain.noise[1], deep.noise[1], 0.02f * plain.noise[1]);
    EXPECT_NEAR(plain.blur, deep.blur, 0.1f);
    EXPECT_NEAR(plain.lumaMedian, deep.lumaMedian, 0.005f);
}

TEST(Hostile, NoPictureIsAnError) {
    const ImageData nothing;
    const ImageStatistics s = measureImage(nothing, {});
    EXPECT_EQ(s.width, 0);
    EXPECT_FALSE(answerFor(nullptr, s).error.isEmpty());
}

TEST(Stopping, AStopIsAnsweredAtOnce) {
    // Large, so that the whole takes much longer than the answer to a stop may. In processor time, so
    // that it doesn't matter what else the machine is doing.
    const auto picture = image(flat(4000, 3000, {0.4f, 0.5f, 0.6f}));
    const std::clock_t begun = std::clock();
    measureImage(*picture, {});
    const std::clock_t whole = std::clock() - begun;
    for (const int delay : {0, 15, 40, 90}) {
        std::stop_source source;
        std::atomic<std::clock_t> asked = 0;
        std::thread stopper([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(delay));
            source.request_stop();
            asked = std::clock();
        });
        measureImage(*picture, source.get_token());
        const std::clock_t done = std::clock();
        stopper.join();
        EXPECT_LT(done - asked, whole / 3) << delay;
    }
    std::stop_source stopped;
    stopped.request_stop();
    ImageStatistics s;
    s.width = s.height = 100;
    EXPECT_TRUE(analyseImage({}, s, {}, {}, {stopped.get_token(), {}}).cancelled);
}
