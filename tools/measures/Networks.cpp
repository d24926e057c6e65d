#include "Networks.h"

#include "bench/EngineRun.h"
#include "bench/WeightCount.h"

#include "engine/catalogue/ModelCatalogue.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <ctime>

#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

const cv::Size Whole(2400, 1600), ToEnlarge(1200, 800);

double processorTime() {
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + 1e-9 * double(time.tv_nsec);
}

/// The most memory held since the last call of forgetPeak(), in MB.
double peakMegabytes() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QFile::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').front().toDouble() / 1024;
    }
    return 0;
}

void forgetPeak() {
    malloc_trim(0);
    QFile refs(u"/proc/self/clear_refs"_s);
    if (refs.open(QFile::WriteOnly))
        refs.write("5");
}

/// Every parameter half way.
Filter filterFor(const ModelDefinition &model, const NetworkDefinition &network) {
    Filter filter{model.category, model.model, {}};
    for (const ParameterDefinition &parameter : model.parameters)
        filter.params[parameter.name] =
            parameter.isFlag ? QVariant(network.when.value(parameter.role)) : QVariant(0.5);
    if (model.category == u"Enhance"_s)
        filter.params[u"scale"_s] = network.scale;
    return filter;
}

void measure(NetworkCost &cost, const Filter &filter) {
    EngineRun engine;
    cv::Mat picture(cost.scale > 1 ? ToEnlarge : Whole, CV_8UC3);
    cv::RNG random(3);
    random.fill(picture, cv::RNG::NORMAL, 128, 20);
    double loading = 0;
    engine.run(picture({0, 0, 160, 160}).clone(), {filter}, loading);
    forgetPeak();
    const double before = processorTime();
    engine.run(picture, {filter}, cost.seconds);
    cost.coreSeconds = (processorTime() - before) / megapixels(picture);
    cost.seconds /= megapixels(picture);
    cost.peakMegabytes = peakMegabytes();
}

} // namespace

std::vector<NetworkCost> networkCosts(const std::set<QString> &models) {
    const auto catalogue =
        ModelCatalogue::read(QStringLiteral(ORVANE_MODELS), [](const auto &, QString *) { return true; });
    std::vector<NetworkCost> costs;
    const QVariantMap categories = catalogue->toMap();
    for (auto category = categories.begin(); category != categories.end(); ++category) {
        const QStringList names = category->toMap().keys();
        for (const QString &name : names) {
            if (!models.contains(name))
                continue;
            const ModelDefinition &model = *catalogue->find(category.key(), name);
            for (const NetworkDefinition &network : model.networks) {
                const QFileInfo info(network.path);
                const auto known = std::find_if(costs.begin(), costs.end(), [&info](const NetworkCost &one) {
                    return one.file == info.fileName();
                });
                if (known != costs.end()) {
                    known->models += u", "_s + name;
                    continue;
                }
                QFile file(network.path);
                if (!file.open(QFile::ReadOnly))
                    continue;
                // Every weight is used once for each block of 2 x 2 pixels.
                NetworkCost cost{.file = info.fileName(),
                                 .models = name,
                                 .scale = network.scale,
                                 .halo = network.halo,
                                 .multiplyAdds = convolutionWeights(file.readAll()) / 4,
                                 .megabytes = double(info.size()) / 1e6};
                measure(cost, filterFor(model, network));
                costs.push_back(cost);
            }
        }
    }
    std::sort(costs.begin(), costs.end(),
              [](const NetworkCost &a, const NetworkCost &b) { return a.file < b.file; });
    return costs;
}
