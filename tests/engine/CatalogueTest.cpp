#include "Harness.h"
#include "engine/filters/StrengthScale.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

void write(const QString &path, const QByteArray &contents) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(contents);
}

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
    struct Row {
        const char *category, *model, *parameter;
        double initial, least, most;
    };
    const Row rows[] = {
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
    for (const Row &row : rows) {
        const QVariantMap entry = engine.catalogue[QLatin1String(row.category)]
                                      .toMap()[QLatin1String(row.model)]
                                      .toMap()[u"gui"_s]
                                      .toMap()[u"parameters"_s]
                                      .toMap()[QLatin1String(row.parameter)]
                                      .toMap();
        const QVariantMap expected{{u"default"_s, row.initial}, {u"min"_s, row.least}, {u"max"_s, row.most}};
        EXPECT_EQ(entry, expected) << row.category << '/' << row.model << '/' << row.parameter;
    }
    for (const char *missing : {"Face Recovery", "Text Recovery", "Inpaint"})
        EXPECT_FALSE(engine.catalogue.contains(QLatin1String(missing))) << "what does nothing is not offered";
}

TEST(Catalogue, FilesAgreeWithTheStrengthScale) {
    struct Row {
        const char *file;
        int network;
        int condition;
        double unit; ///< what a condition of 1 stands for
        double maximum;
    };
    // Blur is told by its spread: half the radius of a disk, the length of a line by the root of 12.
    const Row rows[] = {
        {"denoise/low-light-beta", 0, 0, 75, StrengthScale::denoiseNormal.maximum * 255},
        {"denoise/severe-noise-beta", 0, 0, 75, StrengthScale::denoiseStrong.maximum * 255},
        {"denoise/severe-noise", 0, 0, 75, StrengthScale::denoiseExtreme.maximum * 255},
        {"raw/raw-native", 0, 0, 75, StrengthScale::rawNative.maximum * 255 * StrengthScale::sensorNative},
        {"raw/linear-raw", 0, 0, 75, StrengthScale::rawNative.maximum * 255 * StrengthScale::sensorNative},
        {"raw/raw-standard", 0, 0, 75,
         StrengthScale::rawStandard.maximum * 255 * StrengthScale::sensorStandard},
        {"sharpen/sharpen-standard-v2", 0, 2, 4, StrengthScale::sharpenStandard.maximum},
        {"sharpen/sharpen-strong", 0, 2, 4, StrengthScale::sharpenStrong.maximum},
        {"sharpen/sharpen-standard", 0, 2, 4 * std::sqrt(12), StrengthScale::sharpenMotion.maximum},
        {"sharpen/sharpen-standard", 1, 2, 4 * 2, StrengthScale::sharpenLens.maximum},
    };
    for (const Row &row : rows) {
        QFile file(QStringLiteral(ORVANE_MODELS "/%1.json").arg(QLatin1String(row.file)));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << row.file;
        const QJsonObject network =
            QJsonDocument::fromJson(file.readAll()).object()[u"networks"][row.network].toObject();
        const double weight = network[u"conditions"][row.condition][u"strength"].toDouble();
        EXPECT_NEAR(weight * row.unit, row.maximum, 1e-3 * row.maximum) << row.file;
    }
    EXPECT_NEAR(StrengthScale::denoiseStrong.strength(StrengthScale::denoiseStrong.measure(0.3)), 0.3, 1e-12);
}

/// A damaged file costs its own model and one line that names it, nothing more.
TEST(Catalogue, DamagedFilesAreSkipped) {
    struct Row {
        const char *name;
        QByteArray contents;
    };
    const Row rows[] = {
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
    QTemporaryDir dir;
    write(dir.filePath(u"denoise/a-good.json"_s),
          definition("Good", R"({"p": {"default": 0.5, "role": "strength"}})"));
    for (const Row &row : rows)
        write(dir.filePath(u"denoise/%1.json"_s.arg(QLatin1String(row.name))), row.contents);
    write(dir.filePath(u"stray.json"_s), "not in a category's folder");

    const auto engine = makeEngineBackend();
    const LogCapture log;
    const QVariantMap catalogue = engine->catalogue(dir.path());
    EXPECT_EQ(catalogue.keys(), QStringList{u"Denoise"_s});
    EXPECT_EQ(catalogue[u"Denoise"_s].toMap().keys(), QStringList{u"Good"_s});
    for (const Row &row : rows)
        EXPECT_EQ(log.count(u"/%1.json"_s.arg(QLatin1String(row.name))), 1) << row.name;
    EXPECT_EQ(log.lines().size(), qsizetype(std::size(rows)));
    EXPECT_TRUE(engine->catalogue(dir.filePath(u"nowhere"_s)).isEmpty());
}
