#include "engine/EngineBackend.h"

#include "engine/analysis/Analyse.h"
#include "engine/analysis/ImageFacts.h"
#include "engine/core/PixelTransfer.h"
#include "engine/filters/FilterStack.h"
#include "engine/filters/Filters.h"

#include <QCoreApplication>

#include <condition_variable>
#include <new>
#include <thread>

namespace {

class EngineBackend final : public ProcessingBackend {
public:
    explicit EngineBackend(const EngineOptions &options)
        : m_threads(options.threads > 0 ? options.threads
                                        : int(std::max(1u, std::thread::hardware_concurrency())))
        , m_tileSide(options.tileSide)
        , m_cache(options.cacheBytes)
        , m_models(std::make_shared<ModelCatalogue>()) {}

    QVariantMap catalogue(const QString &modelDirectory) override;
    AutopilotAnswer analyse(const EngineInput &input, const AutopilotOptions &options,
                            const RunControl &control) override;
    ProcResult process(const ProcRequest &request, const RunControl &control) override;
    void clearCache(const QString &uid) override;

private:
    ProcResult run(const ProcRequest &request, const RunControl &control);
    /// Waits for definitions that are being read.
    std::shared_ptr<const ModelCatalogue> models(const std::stop_token &stop);

    const int m_threads;
    const int m_tileSide;
    StageCache m_cache;
    ImageFacts m_facts;
    NetworkStore m_networks;
    std::mutex m_mutex;
    std::condition_variable_any m_read;
    int m_reading = 0;
    std::shared_ptr<const ModelCatalogue> m_models;
};

ProcResult failed(const QString &error) {
    ProcResult result;
    result.error = error;
    return result;
}

ProcResult cancelled() {
    ProcResult result;
    result.cancelled = true;
    return result;
}

std::shared_ptr<const ModelCatalogue> EngineBackend::models(const std::stop_token &stop) {
    std::unique_lock lock(m_mutex);
    m_read.wait(lock, stop, [this] { return m_reading == 0; });
    return m_models;
}

QVariantMap EngineBackend::catalogue(const QString &modelDirectory) {
    {
        const std::lock_guard lock(m_mutex);
        ++m_reading;
    }
    const auto read =
        ModelCatalogue::read(modelDirectory, [this](const ModelDefinition &definition, QString *why) {
            return Filters::supports(definition, m_networks, why);
        });
    {
        const std::lock_guard lock(m_mutex);
        --m_reading;
        if (!read->isEmpty()) {
            m_models = read;
            m_cache.clear({}); // a model of the same name may do something else now
        }
    }
    m_read.notify_all();
    return read->toMap();
}

AutopilotAnswer EngineBackend::analyse(const EngineInput &input, const AutopilotOptions &options,
                                       const RunControl &control) {
    AutopilotAnswer answer;
    try {
        if (!input.image || input.image->isNull()) {
            answer.error = QCoreApplication::translate("Engine", "There is no picture to analyse");
            return answer;
        }
        control.report(0, QStringLiteral("params"));
        const auto statistics = m_facts.of(input.uid, input.image, control.stop);
        if (statistics)
            return analyseImage(input, *statistics, *models(control.stop), options, control);
        answer.cancelled = true;
    } catch (const std::bad_alloc &) {
        answer = {};
        answer.error = QCoreApplication::translate("Engine", "Not enough memory to analyse the picture");
    }
    return answer;
}

ProcResult EngineBackend::process(const ProcRequest &request, const RunControl &control) {
    try {
        return run(request, control);
    } catch (const std::bad_alloc &) {
        return failed(QCoreApplication::translate("Engine", "Not enough memory to process the picture"));
    }
}

ProcResult EngineBackend::run(const ProcRequest &request, const RunControl &control) {
    const ImageRef &image = request.input.image;
    if (control.stopped())
        return cancelled();
    if (!image || image->isNull())
        return failed(QCoreApplication::translate("Engine", "There is no picture to process"));
    const TRect whole(0, 0, image->width(), image->height());
    const TRect region = Region::intersected(TRect(request.region), whole);
    if (region.isEmpty())
        return failed(
            QCoreApplication::translate("Engine", "The region to process lies outside the picture"));

    ImageStatistics statistics;
    if (hasEnabledFilter(request)) {
        bool replaced = false;
        const auto measured = m_facts.of(request.input.uid, image, control.stop, &replaced);
        if (!measured)
            return cancelled();
        if (replaced)
            m_cache.clear(request.input.uid);
        statistics = *measured;
    }
    StageChain chain(image);
    const QString error = buildFilterStack(request, *models(control.stop), statistics, m_networks, chain);
    if (!error.isEmpty())
        return failed(error);

    const bool exports = request.exporting || request.full;
    StageChain::Outcome outcome =
        chain.run(region, {request.input.uid, m_threads, m_tileSide, &m_cache, !exports}, control);
    if (exports)
        m_networks.releaseMemory();
    ProcResult result;
    result.cancelled = outcome.cancelled;
    result.error = outcome.error;
    result.image = std::move(outcome.image);
    result.region = region;
    result.scale = chain.scale();
    return result;
}

void EngineBackend::clearCache(const QString &uid) {
    m_cache.clear(uid);
    m_facts.clear(uid);
}

} // namespace

std::unique_ptr<ProcessingBackend> makeEngineBackend(const EngineOptions &options) {
    return std::make_unique<EngineBackend>(options);
}
