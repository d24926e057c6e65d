#include "frontends/TEngineController.h"
#include "frontends/TImageReader.h"
#include "frontends/TImageUtils.h"
#include "frontends/TImageWriter.h"
#include "tests/fakes/FakeEngine.h"
#include "tests/fakes/FakeFiles.h"

#include "Support.h"

#include <QJSEngine>

using namespace Qt::StringLiterals;

namespace {

// The interface's documents carry images and maps through script; nothing may be lost on the way.
TEST(ScriptUse, AnImageGoesFromReaderThroughEngineToWriter) {
    const auto files = std::make_shared<FakeFiles>();
    files->add(u"/a.jpg"_s, 9, 7);
    auto backend = std::make_unique<FakeEngine>();
    FakeEngine *engine = backend.get();
    TImageReader reader(files);
    TEngineController controller(std::move(backend));
    TImageWriter writer(files);
    TImageUtils utils;

    QJSEngine script;
    const auto offer = [&](const QString &name, QObject *object) {
        QJSEngine::setObjectOwnership(object, QJSEngine::CppOwnership);
        script.globalObject().setProperty(name, script.newQObject(object));
    };
    offer(u"reader"_s, &reader);
    offer(u"engine"_s, &controller);
    offer(u"writer"_s, &writer);
    offer(u"utils"_s, &utils);
    const auto run = [&](const QString &program) {
        const QJSValue value = script.evaluate(program);
        EXPECT_FALSE(value.isError()) << value.toString().toStdString();
        return value;
    };

    run(u"reader.filepath = '/a.jpg'"_s);
    ASSERT_TRUE(eventually([&] { return !reader.imagedata().isEmpty(); }));
    QSignalSpy advice(&controller, &TEngineController::autoPilotFinished);
    run(u"engine.inputImage = reader.imagedata; engine.params = { changesCount: 5, Denoise: { enabled: true "
        u"} };"
        "engine.autoPilot(engine.inputImage, { regenerateMask: true }); engine.autoPilot(engine.inputImage)"_s);
    ASSERT_TRUE(advice.wait());
    controller.procRequest(QRectF(0, 0, 9, 7), {});
    ASSERT_TRUE(eventually([&] { return !controller.processing(); }));
    EXPECT_TRUE(engine->requests().front().params.value(u"Denoise"_s).toMap().value(u"enabled"_s).toBool());
    EXPECT_EQ(run(u"engine.procResult.requestUid"_s).toInt(), 1);
    EXPECT_EQ(run(u"engine.procResult.changesCount === engine.params.changesCount"_s).toBool(), true);
    EXPECT_TRUE(run(u"utils.isValidVariant(engine.procResult.image)"_s).toBool());

    QSignalSpy saved(&writer, &TImageWriter::imageSaved);
    run(u"const record = Object.assign({}, reader.imagedata); record.resolution = 300;"
        "writer.saveImage(engine.procResult.image, '/a.jpg', '/b.jpg', record, { Compression: 'jpeg:95' })"_s);
    ASSERT_TRUE(saved.wait());
    const WriteRequest request = files->written().front();
    EXPECT_EQ(request.image->width(), 9);
    EXPECT_EQ(request.imageData.value(u"resolution"_s).toInt(), 300);
    EXPECT_TRUE(request.imageData.value(u"image"_s).value<std::shared_ptr<ImageData>>());
    EXPECT_EQ(request.options.value(u"Compression"_s).toString(), u"jpeg:95"_s);
}

} // namespace
