#pragma once

#include "contracts/ProcessingBackend.h"
#include "frontends/EngineSettings.h"
#include "frontends/Mailbox.h"
#include "frontends/WorkQueue.h"
#include "system/DiskSpaceWatch.h"

#include <QPointF>
#include <QRectF>
#include <QtQmlIntegration/qqmlintegration.h>

#include <array>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

using ProcessingBackendFactory = std::function<std::unique_ptr<ProcessingBackend>()>;

/// All of image processing as the program sees it. Lives on the main thread and reports there;
/// work is done on threads of its own, with everything it needs taken by value at the call.
/// - Every startProc or procRequest gets exactly one answer, in the order of the requests:
///   procResultChanged, procError or canceled. A new request cancels those before it.
/// - Of analyses the newest alone answers; one that fails answers with empty settings.
/// - Destruction stops the work, waits for it, and drops its answers.
class TEngineController : public EngineSettings {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        QString modelDirectory READ modelDirectory WRITE setModelDirectory NOTIFY modelDirectoryChanged)
    Q_PROPERTY(QVariantMap inputImage READ inputImage WRITE setInputImage NOTIFY inputImageChanged)
    Q_PROPERTY(QVariantMap params READ params WRITE setParams NOTIFY paramsChanged)
    Q_PROPERTY(int totalInpaintCount READ totalInpaintCount WRITE setTotalInpaintCount NOTIFY
                   totalInpaintCountChanged)
    Q_PROPERTY(bool processing READ processing NOTIFY processingChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString status READ status NOTIFY statusChanged)
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)
    Q_PROPERTY(bool downloadingModels READ downloadingModels NOTIFY downloadingModelsChanged)
    Q_PROPERTY(
        bool preCachingPostProcModels READ preCachingPostProcModels NOTIFY preCachingPostProcModelsChanged)
    Q_PROPERTY(QString inputFilePath READ inputFilePath NOTIFY inputImageChanged)
    Q_PROPERTY(QVariantMap modelParamInfo READ modelParamInfo NOTIFY modelParamInfoChanged)
    Q_PROPERTY(QVariantMap procResult READ procResult NOTIFY procResultChanged)

public:
    explicit TEngineController(QObject *parent = nullptr);
    /// With this back end instead of one from the factory.
    explicit TEngineController(std::unique_ptr<ProcessingBackend> backend, QObject *parent = nullptr);
    ~TEngineController() override;

    /// Set once at start by the composition root; every controller makes its back end with it at first use.
    static void setBackendFactory(ProcessingBackendFactory factory);

    QString modelDirectory() const { return m_modelDirectory; }
    /// Reads the catalogue in the background; modelParamInfoChanged follows even when it is empty.
    void setModelDirectory(const QString &directory);

    QVariantMap inputImage() const { return m_inputImage; }
    void setInputImage(const QVariantMap &image);
    QVariantMap params() const { return m_params; }
    void setParams(const QVariantMap &params);
    int totalInpaintCount() const { return m_totalInpaintCount; }
    Q_INVOKABLE void setTotalInpaintCount(int count);

    /// True from a request until the answer to the last one; false already when that answer is announced.
    bool processing() const { return !m_runs.empty(); }
    double progress() const { return m_progress; }   ///< 0 to 1
    QString status() const { return m_status; }      ///< what is being done, a few words; empty when idle
    QString error() const { return m_error; }        ///< of the last failure, until a run succeeds
    bool downloadingModels() const { return false; } ///< models come with the program
    bool preCachingPostProcModels() const { return m_warming > 0; }
    QString inputFilePath() const;
    QVariantMap modelParamInfo() const { return m_modelParamInfo; }
    QVariantMap procResult() const { return m_procResult; }

    Q_INVOKABLE void autoPilot(const QVariantMap &image, const QVariantMap &options = {});
    Q_INVOKABLE void startProc(const QVariantMap &image, const QRect &region, const QVariantMap &params,
                               const QStringList &filterOrder, bool full);
    /// startProc on inputImage and params; a region between pixels grows to whole ones.
    Q_INVOKABLE void procRequest(const QRectF &region, const QStringList &filterOrder);
    /// Cancels the requests that still wait for an answer. An analysis goes on.
    Q_INVOKABLE void cancelProc();

    Q_INVOKABLE void editSubjectMask(const QVariantMap &image, const QVariantMap &subjectSettings);
    Q_INVOKABLE void updateSelectionMaskHover(const QVariantMap &image, const QVariantMap &subjectSettings,
                                              const QPointF &position);
    Q_INVOKABLE void generateSuperpixels(const QVariantMap &image, double brushSize);
    Q_INVOKABLE void calculateBoundingBox(const QVariantMap &image, const QVariantMap &selection);
    Q_INVOKABLE void cacheSamEncoder(const QVariantMap &image);

    Q_INVOKABLE void clearImageCache();
    /// SHA-256, hexadecimal, of the copy fetched from this address; an empty hash when there is none.
    Q_INVOKABLE void hashInstaller(const QString &downloadUrl);

Q_SIGNALS:
    void modelDirectoryChanged();
    void inputImageChanged();
    void paramsChanged();
    void totalInpaintCountChanged();
    void processingChanged();
    void progressChanged();
    void statusChanged();
    void errorChanged();
    void downloadingModelsChanged();
    void preCachingPostProcModelsChanged();
    void modelParamInfoChanged();
    void procResultChanged();

    void autoPilotFinished(const QString &uid, const QVariantMap &settings);
    /// While the analysis goes on the map holds `currentStep` alone.
    void autoProblemsUpdated(const QString &uid, const QVariantMap &problems);
    void procError(const QString &msg);
    void canceled();
    void maskGenerated(const QString &uid, const QVariantMap &maskHashes, const QVariantMap &brushTextures);
    void subjectMaskHoverUpdated(const QVariant &mask);
    void superpixelsGenerated(const QString &uid, double brushSize, const QVariant &image);
    void boundingBoxCalculated(const QRectF &rect);
    void lowSpaceWarning(const QString &volume, bool critical);
    void hashCalculated(const QString &downloadURL, const QString &hash);

private:
    struct Run {
        int uid = 0;
        std::stop_source stop;
    };
    /// Questions about selections of which only the newest is answered.
    enum class Selection { Mask, Hover, Superpixels, BoundingBox };
    using Deliver = std::function<void()>;
    using SelectionWork = std::function<Deliver(ProcessingBackend &, const RunControl &)>;

    ProcessingBackend *backend();
    RunControl progressOf(const std::stop_token &stop);
    RunControl stepsOf(const QString &uid, const std::stop_token &stop);
    void settleRun(const ProcRequest &request, const ProcResult &result);
    void settleAnalysis(const EngineInput &input, const AutopilotAnswer &answer);
    void select(Selection kind, SelectionWork work);
    void warnOfMissingModels() const;
    void warnOfLowSpace(const QStringList &folders);
    void fail(const QString &what, const QString &path, const QString &why);
    void setProgress(double progress);
    void setStatus(const QString &status);
    void setError(const QString &error);

    QString m_modelDirectory;
    QVariantMap m_inputImage;
    QVariantMap m_params;
    QVariantMap m_modelParamInfo;
    QVariantMap m_procResult;
    QString m_status;
    QString m_error;
    double m_progress = 0;
    int m_totalInpaintCount = 0;
    int m_warming = 0;
    int m_lastRequestUid = 0;
    std::deque<Run> m_runs; ///< requests without an answer, oldest first
    std::optional<std::stop_source> m_catalogue;
    std::optional<std::stop_source> m_analysis;
    std::array<std::stop_source, 4> m_selections;
    std::stop_source m_warmUp;
    DiskSpaceWatch m_diskSpace; ///< used on the thread of the runs alone
    std::unique_ptr<ProcessingBackend> m_backend;
    Mailbox m_mailbox;
    WorkQueue m_processing; ///< catalogue, runs, cache
    WorkQueue m_analyses;   ///< analyses and selections
    WorkQueue m_files;      ///< hashes
};
