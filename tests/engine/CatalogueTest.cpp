#include "Harness.h"
#include "NetworkFolder.h"
#include "engine/catalogue/ModelCatalogue.h"

#include <QFile>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QByteArray definition(const QByteArray &model, const QByteArray &parameters = "{}") {
    return R"({"category": "Denoise", "model": ")" + model +
           R"(", "kind": "classical", "operation": "exposure", "parameters": )" + parameters + "}";
}

QByteArray network(const QByteArray &entry) {
    return R"({"category": "Denoise", "model": "A", "kind": "network", "operation": "denoise",
               "parameters": {"p": {"role": "strength"}}, "networks": [)" +
           entry + "]}";
}

} // namespace

/// Every name that the program's controls write is there, with the value it starts from.
TEST(Catalogue, ShippedModels) {
    const std::tuple<const char *, const char *, const char *, double, double, double> rows[] = {
        {"Denoise", "Low Light Beta", "param1_normalv2", 0, 0.01, 1},
        {"Denoise", "Low Light Beta", "param2_normalv2", 0, 0.01, 1},
        {"Denoise", "Low Light Beta", "recover_detail", 0, 0, 1},
        {"Denoise", "Severe Noise Beta", "param1_strongv2", 0, 0.01, 1},
        {"Denoise", "Severe Noise", "param1", 0.01, 0.01, 1},
        {"RAW", "RAW Native", "param1_native", 0.01, 0.01, 1},
        {"RAW", "RAW Native", "param3_native", 0, 0, 1},
        {"RAW", "RAW Standard", "param3_standard", 0.01, 0, 1},
        {"RAW", "Linear RAW", "param2_native", 0.01, 0.01, 1},
        {"Sharpen", "Sharpen Standard v2", "param2", 0.01, 0.01, 1},
        {"Sharpen", "Sharpen Strong", "param1", 0.01, 0.01, 1},
        {"Sharpen", "Sharpen Standard", "param2", 0.01, 0.01, 1},
        {"Enhance", "Standard V2", "param3", 0.01, 0.01, 1},
        {"Enhance", "High Fidelity V2", "param3", 0.01, 0.01, 1},
        {"Enhance", "CGI", "param2", 0.01, 0.01, 1},
        {"Enhance", "Low Resolution", "param1", 0.01, 0.01, 1},
        {"Enhance", "Standard", "param3", 0.01, 0.01, 1},
        {"Enhance", "High Fidelity", "param3", 0.01, 0.01, 1},
        {"Exposure Adjust", "Exposure Standard", "param1", 0.5, -0.25, 0.75},
        {"White Balance Adjust", "White Balance Standard", "temperature", 0.5, 0.01, 1},
        {"White Balance Adjust", "White Balance Standard", "strength", 1, 0.01, 1},
    };
    Engine engine;
    for (const auto &[category, model, parameter, initial, least, most] : rows) {
        const QVariantMap ranges = rangesOf(engine.catalogue, QLatin1String(category), QLatin1String(model));
        const QVariantMap expected{{u"default"_s, initial}, {u"min"_s, least}, {u"max"_s, most}};
        EXPECT_EQ(ranges[QLatin1String(parameter)].toMap(), expected)
            << category << '/' << model << '/' << parameter;
    }
    for (const char *missing : {"Face Recovery", "Text Recovery", "Inpaint"})
        EXPECT_FALSE(engine.catalogue.contains(QLatin1String(missing))) << "what does nothing is not offered";
}

/// What a strength of 1 takes away: noise on the 8-bit scale, blur as its spread in pixels.
TEST(Catalogue, ReachOfTheShippedModels) {
    const std::tuple<QString, QString, ModelDefinition::Fault, QStringList, double> rows[] = {
        {u"Denoise"_s, u"Low Light Beta"_s, ModelDefinition::Noise, {}, 50},
        {u"Denoise"_s, u"Severe Noise Beta"_s, ModelDefinition::Noise, {}, 75},
        {u"Denoise"_s, u"Severe Noise"_s, ModelDefinition::Noise, {}, 100},
        {u"RAW"_s, u"RAW Native"_s, ModelDefinition::Noise, {}, 40},
        {u"RAW"_s, u"Linear RAW"_s, ModelDefinition::Noise, {}, 40},
        {u"RAW"_s, u"RAW Standard"_s, ModelDefinition::Noise, {}, 75},
        {u"Sharpen"_s, u"Sharpen Standard v2"_s, ModelDefinition::Blur, {}, 2},
        {u"Sharpen"_s, u"Sharpen Strong"_s, ModelDefinition::Blur, {}, 3},
        {u"Sharpen"_s, u"Sharpen Standard"_s, ModelDefinition::Blur, {}, 9 / std::sqrt(12)},
        {u"Sharpen"_s, u"Sharpen Standard"_s, ModelDefinition::Blur, {u"lens"_s}, 8.0 / 2},
        {u"Sharpen"_s, u"Sharpen Strong"_s, ModelDefinition::Noise, {}, 0},
        {u"Exposure Adjust"_s, {}, ModelDefinition::Noise, {}, 0},
    };
    const auto models = ModelCatalogue::read(QStringLiteral(ORVANE_MODELS));
    for (const auto &[category, name, fault, flags, reach] : rows) {
        const ModelDefinition *model = models->find(category, name);
        ASSERT_TRUE(model) << name.toStdString();
        EXPECT_NEAR(model->reach(fault, flags), reach, 1e-3 * reach) << name.toStdString();
    }
}

/// A model is added by a definition file alone: it is listed, runs, and is advised within its own range.
TEST(Catalogue, ANewModelIsAFile) {
    const NetworkFolder dir;
    dir.write(u"velvet.json"_s, R"({
        "category": "Denoise", "model": "Velvet", "kind": "network", "operation": "denoise",
        "parameters": { "velvet": { "role": "strength", "default": 0.2, "min": 0.1, "max": 0.3 },
                        "sheen": { "role": "detail", "default": 0.6, "min": 0.5, "max": 1 },
                        "nap": { "default": 0.4 } },
        "networks": [ { "file": "../normal.onnx", "halo": 20,
                        "conditions": [ { "strength": 0.5 }, {}, {}, {} ] } ] })");
    ASSERT_TRUE(QFile::copy(QStringLiteral(ORVANE_MODELS "/denoise/denoise-normal.onnx"),
                            dir.file(u"../normal.onnx"_s)));
    Engine engine({}, dir.path());
    EXPECT_EQ(engine.catalogue[u"Denoise"_s].toMap().keys(), QStringList{u"Velvet"_s});

    const auto scene = Pictures::scene(320, 240);
    for (const auto &[noise, strength] :
         {std::pair(0.0, 0.1), std::pair(7.0, 7 / 37.5), std::pair(40.0, 0.3)}) {
        const auto picture = noise > 0 ? Pictures::noisy(*scene, noise) : scene;
        AutopilotOptions options;
        options.preferences.denoisingModel = u"Velvet"_s;
        options.preferences.upscalingType = u"none"_s;
        const AutopilotAnswer answer = engine.backend->analyse(Engine::request(picture).input, options, {});
        const QVariantMap advice = answer.settings[u"Denoise"_s].toMap();
        EXPECT_EQ(advice[u"model"_s], u"Velvet"_s);
        EXPECT_NEAR(advice[u"velvet"_s].toDouble(), strength, 0.03) << noise;
        EXPECT_EQ(advice[u"sheen"_s], 0.5);
        EXPECT_EQ(advice[u"nap"_s], 0.4);
        EXPECT_FALSE(advice.contains(u"param1"_s)) << "a model that isn't installed has no parameters";
    }
    const auto noisy = Pictures::noisy(*scene, 15);
    const auto out = engine.run(noisy, u"Denoise"_s, u"Velvet"_s, {{u"velvet"_s, 0.3}}).image;
    ASSERT_TRUE(out);
    EXPECT_GT(Pictures::psnr(*out, *scene), Pictures::psnr(*noisy, *scene) + 1);
}

/// A damaged file costs its own model and one line that names it, nothing more.
TEST(Catalogue, DamagedFilesAreSkipped) {
    const std::tuple<const char *, QByteArray> rows[] = {
        {"empty", ""},
        {"cut-off", definition("A").left(60)},
        {"list", "[1, 2]"},
        {"binary", QByteArray(3000, '\0')},
        {"deep", "{\"category\":" + QByteArray(5000, '[') + QByteArray(5000, ']') + "}"},
        {"huge", definition("A") + QByteArray(300 * 1024, ' ')},
        {"nameless", definition("")},
        {"long-name", definition(QByteArray(1000, 'x'))},
        {"range", definition("A", R"({"p": {"min": 2, "max": 1}})")},
        {"infinite", definition("A", R"({"p": {"min": 0, "max": 1e999}})")},
        {"parameter", definition("A", R"({"p": 5})")},
        {"kind", definition("A").replace("classical", "magic")},
        {"operation", definition("A").replace("exposure", "polish")},
        {"second-good", definition("Good")},
        {"no-networks", network("")},
        {"no-file", network(R"({"halo": 8, "conditions": [{}]})")},
        {"no-halo", network(R"({"file": "n.onnx", "conditions": [{}]})")},
        {"halo", network(R"({"file": "n.onnx", "halo": 1e9, "conditions": [{}]})")},
        {"scale", network(R"({"file": "n.onnx", "halo": 8, "scale": 3, "conditions": [{}]})")},
        {"tile", network(R"({"file": "n.onnx", "halo": 8, "tile": 0.5, "conditions": [{}]})")},
        {"no-conditions", network(R"({"file": "n.onnx", "halo": 8})")},
        {"condition", network(R"({"file": "n.onnx", "halo": 8, "conditions": ["noise"]})")},
        {"weight", network(R"({"file": "n.onnx", "halo": 8, "conditions": [{"strength": 1e99}]})")},
        {"role", network(R"({"file": "n.onnx", "halo": 8, "conditions": [{"valour": 1}]})")},
        {"flag", network(R"({"file": "n.onnx", "halo": 8, "when": {"moon": true}, "conditions": [{}]})")},
        {"outside", network(R"({"file": "../../n.onnx", "halo": 8, "conditions": [{}]})")},
        {"absolute", network(R"({"file": "/dev/zero", "halo": 8, "conditions": [{}]})")},
    };
    const NetworkFolder dir;
    dir.write(u"a-good.json"_s, definition("Good", R"({"p": {"default": 0.5, "role": "strength"}})"));
    for (const auto &[name, contents] : rows)
        dir.write(u"%1.json"_s.arg(QLatin1String(name)), contents);
    dir.write(u"../stray.json"_s, "not in a category's folder");

    const auto engine = makeEngineBackend();
    const LogCapture log;
    const QVariantMap catalogue = engine->catalogue(dir.path());
    EXPECT_EQ(catalogue.keys(), QStringList{u"Denoise"_s});
    EXPECT_EQ(catalogue[u"Denoise"_s].toMap().keys(), QStringList{u"Good"_s});
    for (const auto &[name, contents] : rows)
        EXPECT_EQ(log.count(u"/%1.json"_s.arg(QLatin1String(name))), 1) << name;
    EXPECT_EQ(log.lines().size(), qsizetype(std::size(rows)));
    EXPECT_TRUE(engine->catalogue(dir.file(u"nowhere"_s)).isEmpty());
}
