#include "Harness.h"
#include "NetworkFolder.h"

#include <QFile>

#include <random>

using namespace Qt::StringLiterals;

namespace {

using Graph = TinyOnnx::Graph;

QByteArray changed(const std::function<void(Graph &)> &change) {
    Graph graph = TinyOnnx::residual({});
    change(graph);
    return graph.bytes();
}

ProcResult runSpoilt(Engine &engine) {
    return engine.run(Pictures::scene(40, 30), u"Denoise"_s, u"Spoilt"_s,
                      {{u"strength"_s, 0.5}, {u"deblur"_s, 0.5}});
}

} // namespace

/// A weight file that can't be used costs its own model, and whoever asks for that learns the name.
TEST(NetworkDamage, IsToldByName) {
    const QByteArray good = TinyOnnx::residual({}).bytes();
    const std::tuple<const char *, std::optional<QByteArray>, QString> rows[] = {
        {"missing", {}, u"missing"_s},
        {"empty", QByteArray(), u"damaged"_s},
        {"text", "this is no network", u"damaged"_s},
        {"zeroes", QByteArray(5000, '\0'), u"damaged"_s},
        {"cut off", good.left(good.size() / 2), u"damaged"_s},
        {"last byte lost", good.chopped(1), u"damaged"_s},
        {"another input's name", changed([](Graph &g) { g.inputs[0].name = "picture"; }), {}},
        {"an input more", changed([](Graph &g) { g.inputs.push_back({"more", {1}}); }), u"names"_s},
        {"three conditions", TinyOnnx::residual({.conditions = 3}).bytes(), u"shapes"_s},
        {"another scale", TinyOnnx::residual({.scale = 2}).bytes(), u"cannot be run"_s},
        {"greyscale", changed([](Graph &g) { g.inputs[0].dims[1] = 1; }), {}},
        {"unknown operation", changed([](Graph &g) { g.nodes[0].operation = "Polish"; }), u"damaged"_s},
        {"missing constant", changed([](Graph &g) { g.constants.pop_back(); }), u"damaged"_s},
        {"wrong weights", changed([](Graph &g) { g.constants.back().dims[1] = 5; }), {}},
        {"no numbers", TinyOnnx::residual({.change = NAN}).bytes(), u"no numbers"_s},
    };
    for (const auto &[name, contents, reason] : rows) {
        SCOPED_TRACE(name);
        const NetworkFolder folder;
        folder.defineRestorer(u"Good"_s, {});
        folder.defineRestorer(u"Spoilt"_s, {});
        const QString file = folder.file(u"Spoilt.onnx"_s);
        ASSERT_TRUE(QFile::remove(file));
        if (contents)
            folder.write(u"Spoilt.onnx"_s, *contents);
        const LogCapture log;
        Engine engine({}, folder.path());
        EXPECT_EQ(engine.catalogue[u"Denoise"_s].toMap().keys(), QStringList{u"Good"_s});
        EXPECT_EQ(log.count(u"Spoilt.onnx"_s), 1);
        const ProcResult result = runSpoilt(engine);
        EXPECT_FALSE(result.image);
        EXPECT_TRUE(result.error.contains(u"Spoilt.onnx"_s)) << result.error.toStdString();
        EXPECT_TRUE(result.error.contains(reason)) << result.error.toStdString();
    }
}

/// A file that goes, or changes, between two runs is noticed.
TEST(NetworkDamage, BetweenRuns) {
    const NetworkFolder folder;
    folder.defineRestorer(u"Spoilt"_s, {});
    Engine engine({}, folder.path());
    const auto before = runSpoilt(engine).image;
    ASSERT_TRUE(before);
    folder.write(u"Spoilt.onnx"_s, TinyOnnx::residual({.channels = 12, .seed = 5}).bytes());
    const auto after = runSpoilt(engine).image;
    ASSERT_TRUE(after);
    EXPECT_NE(Pictures::mismatch(*before, *after, 0, 0), "");
    ASSERT_TRUE(QFile::remove(folder.file(u"Spoilt.onnx"_s)));
    EXPECT_TRUE(runSpoilt(engine).error.contains(u"Spoilt.onnx"_s));
}

/// Any byte may be wrong: the answer is a picture or a text, never a crash.
TEST(NetworkDamage, AnyByte) {
    const QByteArray good = TinyOnnx::residual({.channels = 4}).bytes();
    std::minstd_rand random(11);
    const NetworkFolder folder;
    folder.defineRestorer(u"Spoilt"_s, {.channels = 4});
    const LogCapture quiet;
    int refused = 0;
    for (int i = 0; i < 150; ++i) {
        QByteArray bytes = good;
        for (unsigned n = 1 + random() % 3; n > 0; --n)
            bytes[qsizetype(random() % unsigned(bytes.size()))] = char(random());
        folder.write(u"Spoilt.onnx"_s,
                     i % 5 == 0 ? good.left(qsizetype(random() % unsigned(good.size()))) : bytes);
        Engine engine({1, 0, 0}, folder.path());
        const ProcResult result = runSpoilt(engine);
        EXPECT_NE(bool(result.image), !result.error.isEmpty());
        refused += result.image ? 0 : 1;
    }
    EXPECT_GT(refused, 30);
}
