#include "Benches.h"
#include "FmaPeak.h"
#include "WeightCount.h"

#include "engine/EngineBackend.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <random>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

double seconds(clockid_t clock) {
    timespec time;
    clock_gettime(clock, &time);
    return double(time.tv_sec) + 1e-9 * double(time.tv_nsec);
}

ImageRef grain(int width, int height) {
    auto image = std::make_shared<ImageData>(width, height, 3, SampleType::UInt8);
    std::minstd_rand random(3);
    for (int y = 0; y < height; ++y)
        for (auto &sample : image->samples<std::uint8_t>(y))
            sample = std::uint8_t(64 + (y >> 5) % 64 + int(random() % 32));
    return image;
}

/// A network model as its definition file describes it, with the size of its weights.
struct Model {
    QString category, name;
    QVariantMap params; ///< every number in the middle of its range
    int scale = 1;
    double multiplyAdds = 0; ///< for an input pixel
};

/// Every weight is used once for each block of 2 x 2 pixels.
std::vector<Model> networkModels() {
    std::vector<Model> models;
    QDirIterator files(QStringLiteral(ORVANE_MODELS), {u"*.json"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
        const QJsonArray networks = object[u"networks"].toArray();
        for (const QJsonValue &network : networks) {
            Model model{object[u"category"].toString(), object[u"model"].toString(), {}};
            model.scale = network[u"scale"].toInt();
            QFile weights(QFileInfo(file).dir().filePath(network[u"file"].toString()));
            if (weights.open(QIODevice::ReadOnly))
                model.multiplyAdds = convolutionWeights(weights.readAll()) / 4;
            const QJsonObject parameters = object[u"parameters"].toObject();
            for (auto p = parameters.begin(); p != parameters.end(); ++p)
                model.params[p.key()] = p->toObject()[u"default"].isBool() ? QVariant(false) : QVariant(0.5);
            const QJsonObject when = network[u"when"].toObject();
            if (!when.isEmpty())
                model.params[u"isLens"_s] = when.begin()->toBool();
            if (model.category == u"Enhance"_s)
                model.params[u"scale"_s] = model.scale;
            models.push_back(model);
        }
    }
    std::sort(models.begin(), models.end(),
              [](const Model &a, const Model &b) { return a.category + a.name < b.category + b.name; });
    return models;
}

class Runs {
public:
    Runs()
        : m_engine(makeEngineBackend()) {
        m_engine->catalogue(QStringLiteral(ORVANE_MODELS));
    }
    ProcRequest request(const ImageRef &image) {
        ProcRequest request;
        request.input.uid = QString::number(++m_uid);
        request.input.image = image;
        request.region = QRect(0, 0, image->width(), image->height());
        return request;
    }
    static void add(ProcRequest &request, const QString &category, const QString &model,
                    const QVariantMap &params) {
        request.filterOrder.append(category);
        request.params[category] = QVariantMap{
            {u"category"_s, category}, {u"model"_s, model}, {u"params"_s, params}, {u"enabled"_s, true}};
    }
    /// Seconds of the wall clock; below 0 when the run failed.
    double run(const ProcRequest &request) {
        QElapsedTimer timer;
        timer.start();
        const ProcResult result = m_engine->process(request, {});
        if (!result.image)
            std::fprintf(stderr, "network: %s\n", qPrintable(result.error));
        return result.image ? double(timer.nsecsElapsed()) / 1e9 : -1;
    }
    /// Milliseconds from the stop request to the answer, the worst of several.
    double stopping(ProcRequest request) {
        double worst = 0;
        for (const int delay : {30, 70, 110, 160, 230, 310}) {
            request.input.uid = QString::number(++m_uid);
            std::stop_source source;
            RunControl control;
            control.stop = source.get_token();
            double ended = 0;
            std::jthread runner([&] {
                m_engine->process(request, control);
                ended = seconds(CLOCK_MONOTONIC);
            });
            std::this_thread::sleep_for(std::chrono::milliseconds(delay));
            const double asked = seconds(CLOCK_MONOTONIC);
            source.request_stop();
            runner.join();
            worst = std::max(worst, 1000 * (ended - asked));
        }
        return worst;
    }

private:
    std::unique_ptr<ProcessingBackend> m_engine;
    int m_uid = 0;
};

bool benchModels(Runs &runs, double peak, const QString &only) {
    std::printf("%-42s %9s %9s %9s %9s %9s\n", "model, whole pictures", "MP/s", "MP/core-s", "kMAC",
                "of peak", "stop, ms");
    for (const Model &model : networkModels()) {
        if (!model.name.contains(only))
            continue;
        const ImageRef image = model.scale == 1 ? grain(2600, 1800) : grain(1300, 900);
        ProcRequest request = runs.request(image);
        Runs::add(request, model.category, model.name, model.params);
        request.full = true;
        if (runs.run(request) < 0) // measures the picture
            return false;
        const double core = seconds(CLOCK_PROCESS_CPUTIME_ID), wall = runs.run(request);
        const double used = seconds(CLOCK_PROCESS_CPUTIME_ID) - core;
        const double pixels = double(image->width()) * image->height() / 1e6;
        const QString name = u"%1 x%2%3"_s.arg(model.name)
                                 .arg(model.scale)
                                 .arg(model.params[u"isLens"_s].toBool() ? u", lens" : u"");
        std::printf("%-42s %9.2f %9.2f %9.1f %8.0f%% %9.0f\n", qPrintable(name), pixels / wall, pixels / used,
                    model.multiplyAdds / 1e3, 100 * model.multiplyAdds * pixels * 1e6 / used / peak,
                    runs.stopping(request));
        std::fflush(stdout);
    }
    return true;
}

/// What the window asks for: a view of a large picture, then the last slider, then the same again.
bool benchView(Runs &runs) {
    ProcRequest request = runs.request(grain(6000, 4000));
    const QVariantMap noise{{u"param1_normalv2"_s, 0.4}};
    Runs::add(request, u"Denoise"_s, u"Low Light Beta"_s, noise);
    request.region = QRect(10, 10, 20, 20);
    runs.run(request); // measures the picture
    const auto sharpen = [&](double strength) {
        request.filterOrder = QStringList{u"Denoise"_s};
        Runs::add(request, u"Sharpen"_s, u"Sharpen Standard v2"_s, {{u"param2"_s, strength}});
        return runs.run(request);
    };
    request.region = QRect(2003, 1501, 800, 600);
    const double before = seconds(CLOCK_PROCESS_CPUTIME_ID), both = sharpen(0.4);
    const double used = seconds(CLOCK_PROCESS_CPUTIME_ID) - before;
    const double last = sharpen(0.5), cached = sharpen(0.5);
    std::printf("view of 800 x 600, denoise and sharpen: %.3f s (%.3f s of processor time); last slider: "
                "%.3f s; cached: %.4f s\n",
                both, used, last, cached);
    return both > 0 && last > 0 && cached > 0;
}

} // namespace

/// With an argument only the models that have it in their name.
int benchNetwork(const QStringList &arguments) {
    const double peak = fmaPeakPerCore();
    std::printf("%u cores; peak of one: %.0f GFLOP/s in 32 bit; shares of the peak are by processor time\n",
                std::max(1u, std::thread::hardware_concurrency()), 2 * peak / 1e9);
    Runs runs;
    return benchModels(runs, peak, arguments.value(0)) && benchView(runs) ? 0 : 2;
}
