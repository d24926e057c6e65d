#include "FakeBackends.h"

#include "frontends/TEngineController.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

FakeEngine *s_engine = nullptr; // owned by its controller
std::shared_ptr<FakeFiles> s_files;
Hold s_runs;
std::atomic<int> s_steps = 0; // that an analysis may report

FakeEngine::Process process(double progress, const QString &stage, const QString &error) {
    return [=](const ProcRequest &request, const RunControl &control) -> ProcResult {
        if (progress > 0)
            control.report(progress, stage);
        if (!s_runs.pass(control))
            return {.cancelled = true};
        if (!error.isEmpty())
            return {.error = error};
        const QVariantMap enhance = request.params.value(u"Enhance"_s).toMap();
        const QVariant scale = enhance.value(u"params"_s).toMap().value(u"scale"_s, 1);
        return {.image = std::const_pointer_cast<ImageData>(request.input.image),
                .region = request.region,
                .scale = enhance.value(u"enabled"_s).toBool() ? scale.toDouble() : 1};
    };
}

template <typename T, typename F>
QVariantList listed(const T &records, F toVariant) {
    QVariantList list;
    for (const auto &record : records)
        list.append(toVariant(record));
    return list;
}

} // namespace

void FakeBackends::install() {
    TEngineController::setBackendFactory([] {
        auto engine = std::make_unique<FakeEngine>();
        engine->onProcess = process(0, {}, {});
        engine->models = {{u"Denoise"_s, QVariantMap()}};
        s_engine = engine.get();
        return engine;
    });
    s_files = std::make_shared<FakeFiles>();
    setImageFileBackend(s_files);
}

void FakeBackends::hold(const QStringList &kinds) {
    const std::pair<QString, Hold *> holds[] = {
        {u"reads"_s, &s_files->readHold}, {u"runs"_s, &s_runs}, {u"analyses"_s, &s_engine->analysisHold}};
    for (const auto &[kind, hold] : holds)
        kinds.contains(kind) ? hold->close() : hold->open();
}

void FakeBackends::addFile(const QString &path, int width, int height) {
    s_files->add(path, width, height);
}

void FakeBackends::failWriting(const QString &path, const QString &why) {
    s_files->failWriting(path, why);
}

TFilterGenerator *FakeBackends::recommender(const QVariantMap &counts) {
    QJsonArray rows;
    for (const auto &[sequence, count] : counts.asKeyValueRange())
        rows.append(QJsonObject{{u"filters_combined"_s, sequence}, {u"count"_s, count.toDouble()}});
    QFile file(m_folder.filePath(u"sequences.json"_s));
    if (file.open(QFile::WriteOnly))
        file.write(QJsonDocument(rows).toJson());
    file.close();
    auto *generator = new TFilterGenerator; // the garbage collector's
    generator->load(file.fileName());
    return generator;
}

void FakeBackends::advise(const QVariantMap &settings) {
    s_engine->advice = {.settings = settings};
}

void FakeBackends::scriptAnalyses(const QStringList &steps, const QVariantMap &problems) {
    s_steps = 0;
    s_engine->advice.problems = problems;
    s_engine->onAnalyse = nullptr;
    if (steps.empty())
        return;
    s_engine->onAnalyse = [steps, advice = s_engine->advice](const EngineInput &, const AutopilotOptions &,
                                                             const RunControl &control) -> AutopilotAnswer {
        for (qsizetype i = 0; i <= steps.size(); ++i) {
            while (s_steps <= i && !control.stopped())
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            if (i < steps.size())
                control.report(0, steps[i]);
        }
        return control.stopped() ? AutopilotAnswer{.cancelled = true} : advice;
    };
}

void FakeBackends::allowSteps(int count) {
    s_steps = count;
}

void FakeBackends::scriptRuns(double progress, const QString &stage, const QString &error) {
    s_engine->onProcess = process(progress, stage, error);
}

QVariantList FakeBackends::runs() const {
    return listed(s_engine->requests(), [](const ProcRequest &request) {
        return QVariantMap{{u"region"_s, QRectF(request.region)},
                           {u"order"_s, request.filterOrder},
                           {u"params"_s, request.params},
                           {u"path"_s, request.input.filepath},
                           {u"exporting"_s, request.exporting}};
    });
}

QVariantList FakeBackends::analyses() const {
    return listed(s_engine->analyses(), [](const auto &asked) {
        return QVariantMap{{u"uid"_s, asked.first.uid},
                           {u"regenerateMask"_s, asked.second.regenerateMask},
                           {u"forceFaceDetect"_s, asked.second.forceFaceDetect}};
    });
}

QVariantList FakeBackends::masks() const {
    return listed(s_engine->masks(), [](const auto &asked) {
        return QVariantMap{{u"uid"_s, asked.first}, {u"settings"_s, asked.second}};
    });
}

QVariantList FakeBackends::hovers() const {
    return listed(s_engine->hovers(), [](const QPointF &position) { return QVariant(position); });
}

QVariantList FakeBackends::estimates() const {
    return listed(s_files->estimates(),
                  [](const WriteRequest &request) {
                      return QVariantMap{{u"path"_s, request.inputPath}, {u"options"_s, request.options}};
                  })
        .mid(m_estimatesBefore);
}

void FakeBackends::forget() {
    s_engine->forget();
    m_estimatesBefore = qsizetype(s_files->estimates().size());
}
