#include "frontends/TEngineController.h"

#include "frontends/EngineRequests.h"
#include "frontends/NoEngine.h"
#include "frontends/PreferenceTable.h"
#include "frontends/ProgressGate.h"

#include <QDebug>
#include <QDir>
#include <QSettings>

namespace {

ProcessingBackendFactory &backendFactory() {
    static ProcessingBackendFactory factory;
    return factory;
}

bool isEmpty(const EngineInput &input) {
    return !input.image || input.image->isNull();
}

} // namespace

void TEngineController::setBackendFactory(ProcessingBackendFactory factory) {
    backendFactory() = std::move(factory);
}

TEngineController::TEngineController(QObject *parent)
    : TEngineController(nullptr, parent) {
}

TEngineController::TEngineController(std::unique_ptr<ProcessingBackend> backend, QObject *parent)
    : EngineSettings(parent)
    , m_procResult(EngineRequests::result(0, {}, {}))
    , m_backend(std::move(backend)) {
}

TEngineController::~TEngineController() {
    cancelProc();
    if (m_analysis)
        m_analysis->request_stop();
}

ProcessingBackend *TEngineController::backend() {
    if (!m_backend && backendFactory())
        m_backend = backendFactory()();
    if (!m_backend)
        m_backend = std::make_unique<NoEngine>();
    return m_backend.get();
}

void TEngineController::setModelDirectory(const QString &directory) {
    const bool changed = m_modelDirectory != directory;
    if (!changed && m_catalogue)
        return;
    m_modelDirectory = directory;
    if (m_catalogue)
        m_catalogue->request_stop();
    m_catalogue = m_processing.post([this, engine = backend(), directory](const std::stop_token &stop) {
        if (stop.stop_requested())
            return;
        const QVariantMap catalogue = engine->catalogue(directory);
        m_mailbox.post([this, stop, directory, catalogue] {
            if (stop.stop_requested())
                return;
            if (catalogue.isEmpty())
                warnOfMissingModels();
            m_modelParamInfo = catalogue;
            Q_EMIT modelParamInfoChanged();
        });
    });
    if (changed)
        Q_EMIT modelDirectoryChanged();
}

// Models come with the program: who waits for a download to bring them learns at once that none will.
void TEngineController::warnOfMissingModels() const {
    qWarning().noquote() << "[PROC] No models found in" << m_modelDirectory;
    if (storedPreference(QSettings(), u"modelDownloads").toBool())
        qWarning() << "[PROC] This version has no models to download; they come with its installation";
}

void TEngineController::setInputImage(const QVariantMap &image) {
    if (m_inputImage == image)
        return;
    m_inputImage = image;
    Q_EMIT inputImageChanged();
}

QString TEngineController::inputFilePath() const {
    return m_inputImage.value(QStringLiteral("filepath")).toString();
}

void TEngineController::setParams(const QVariantMap &params) {
    if (m_params == params)
        return;
    m_params = params;
    Q_EMIT paramsChanged();
}

void TEngineController::setTotalInpaintCount(int count) {
    if (m_totalInpaintCount == count)
        return;
    m_totalInpaintCount = count;
    Q_EMIT totalInpaintCountChanged();
}

void TEngineController::procRequest(const QRectF &region, const QStringList &filterOrder) {
    startProc(m_inputImage, region.toAlignedRect(), m_params, filterOrder, false);
}

void TEngineController::startProc(const QVariantMap &image, const QRect &region, const QVariantMap &params,
                                  const QStringList &filterOrder, bool full) {
    cancelProc();
    const QSettings settings;
    const ProcRequest request{EngineRequests::input(image),
                              region,
                              params,
                              filterOrder,
                              full,
                              exporting(),
                              exportIsDng(),
                              storedPreference(settings, u"hotPixelCorrection").toBool()};
    QStringList watchedFolders;
    if (storedPreference(settings, u"checkDiskSpace").toBool())
        watchedFolders = {QDir::tempPath(), m_modelDirectory};
    auto job = [this, engine = backend(), request, watchedFolders](const std::stop_token &stop) {
        ProcResult result;
        if (stop.stop_requested()) {
            result.cancelled = true;
        } else if (isEmpty(request.input)) {
            result.error = tr("There is no picture to process.");
        } else {
            warnOfLowSpace(watchedFolders);
            result = engine->process(request, progressOf(stop));
        }
        m_mailbox.post([this, request, result] { settleRun(request, result); });
    };
    const bool idle = m_runs.empty();
    m_runs.push_back({++m_lastRequestUid, m_processing.post(std::move(job))});
    setProgress(0);
    if (idle)
        Q_EMIT processingChanged();
}

void TEngineController::cancelProc() {
    for (Run &run : m_runs)
        run.stop.request_stop();
}

RunControl TEngineController::progressOf(const std::stop_token &stop) {
    const auto gate = std::make_shared<ProgressGate>();
    return {stop, [this, stop, gate](double fraction, const QString &stage) {
                if (!gate->admits(fraction, stage))
                    return;
                m_mailbox.post([this, stop, fraction, stage] {
                    if (stop.stop_requested())
                        return;
                    setStatus(stage);
                    setProgress(fraction);
                });
            }};
}

// Runs take turns on one thread, so the oldest request is the one that is answered. All state
// is set before the first signal: a listener may ask for the next run at once.
void TEngineController::settleRun(const ProcRequest &request, const ProcResult &result) {
    const Run run = std::move(m_runs.front());
    m_runs.pop_front();
    const bool cancelled = result.cancelled || run.stop.stop_requested();
    const bool failed = !cancelled && !result.error.isEmpty();
    const bool idle = m_runs.empty();
    if (!cancelled && !failed)
        m_procResult = EngineRequests::result(run.uid, request, result);
    if (idle) {
        setStatus(QString());
        setProgress(cancelled || failed ? 0 : 1);
        Q_EMIT processingChanged();
    }
    if (cancelled) {
        Q_EMIT canceled();
    } else if (failed) {
        fail(QStringLiteral("Processing"), request.input.filepath, result.error);
        Q_EMIT procError(result.error);
    } else {
        setError(QString());
        Q_EMIT procResultChanged();
    }
}

void TEngineController::warnOfLowSpace(const QStringList &folders) {
    for (const QString &folder : folders) {
        if (const auto warning = m_diskSpace.check(folder))
            m_mailbox.post([this, warning] { Q_EMIT lowSpaceWarning(warning->volume, warning->critical); });
    }
}

void TEngineController::clearImageCache() {
    m_processing.post([engine = backend()](const std::stop_token &) { engine->clearCache(QString()); });
}

void TEngineController::fail(const QString &what, const QString &path, const QString &why) {
    qWarning().noquote() << "[PROC]" << what << "failed for" << path << ":" << why;
    setError(why);
}

void TEngineController::setProgress(double progress) {
    progress = qBound(0.0, progress, 1.0);
    if (m_progress == progress)
        return;
    m_progress = progress;
    Q_EMIT progressChanged();
}

void TEngineController::setStatus(const QString &status) {
    if (m_status == status)
        return;
    m_status = status;
    Q_EMIT statusChanged();
}

void TEngineController::setError(const QString &error) {
    if (m_error == error)
        return;
    m_error = error;
    Q_EMIT errorChanged();
}
