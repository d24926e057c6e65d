#include "frontends/EngineRequests.h"
#include "frontends/TEngineController.h"
#include "system/TempFolders.h"

#include <QCryptographicHash>
#include <QFile>

// The half of the controller that looks at pictures without changing them: analysis, selections,
// and the fingerprint of an installer.

namespace {

constexpr qint64 HashChunk = qint64(1) << 20;

QString currentStepKey() {
    return QStringLiteral("currentStep");
}

bool isStep(const QString &stage) {
    static const QStringList steps = {QStringLiteral("init"),    QStringLiteral("subject"),
                                      QStringLiteral("strokes"), QStringLiteral("faces"),
                                      QStringLiteral("params"),  QStringLiteral("final")};
    return steps.contains(stage);
}

QString hashOf(const QString &path, const std::stop_token &stop) {
    QFile file(path);
    if (path.isEmpty() || !file.open(QFile::ReadOnly))
        return {};
    QCryptographicHash hash(QCryptographicHash::Sha256);
    while (!file.atEnd() && !stop.stop_requested())
        hash.addData(file.read(HashChunk));
    return file.error() == QFile::NoError ? QString::fromLatin1(hash.result().toHex()) : QString();
}

} // namespace

void TEngineController::autoPilot(const QVariantMap &image, const QVariantMap &options) {
    if (m_analysis)
        m_analysis->request_stop();
    m_analysis = m_analyses.post(
        [this, engine = backend(), input = EngineRequests::input(image),
         wanted = EngineRequests::autopilotOptions(options, preferences())](const std::stop_token &stop) {
            if (stop.stop_requested())
                return;
            AutopilotAnswer answer;
            if (input.image && !input.image->isNull())
                answer = engine->analyse(input, wanted, stepsOf(input.uid, stop));
            else
                answer.error = tr("There is no picture to analyse.");
            m_mailbox.post([this, stop, input, answer] {
                if (!stop.stop_requested())
                    settleAnalysis(input, answer);
            });
        });
}

RunControl TEngineController::stepsOf(const QString &uid, const std::stop_token &stop) {
    return {stop, [this, uid, stop](double, const QString &stage) {
                if (!isStep(stage))
                    return;
                m_mailbox.post([this, uid, stop, stage] {
                    if (!stop.stop_requested())
                        Q_EMIT autoProblemsUpdated(uid, {{currentStepKey(), stage}});
                });
            }};
}

void TEngineController::settleAnalysis(const EngineInput &input, const AutopilotAnswer &answer) {
    if (answer.cancelled || !answer.error.isEmpty()) {
        fail(QStringLiteral("Analysis"), input.filepath,
             answer.cancelled ? tr("The analysis was interrupted.") : answer.error);
        Q_EMIT autoPilotFinished(input.uid, {});
        return;
    }
    setError(QString());
    QVariantMap problems = answer.problems;
    if (!problems.contains(currentStepKey()))
        problems.insert(currentStepKey(), QStringLiteral("done"));
    Q_EMIT autoProblemsUpdated(input.uid, problems);
    Q_EMIT autoPilotFinished(input.uid, answer.settings);
}

void TEngineController::select(Selection kind, SelectionWork work) {
    std::stop_source &newest = m_selections[std::size_t(kind)];
    newest.request_stop();
    newest = m_analyses.post([this, engine = backend(), work = std::move(work)](const std::stop_token &stop) {
        if (stop.stop_requested())
            return;
        m_mailbox.post([stop, deliver = work(*engine, {stop, {}})] {
            if (!stop.stop_requested())
                deliver();
        });
    });
}

void TEngineController::editSubjectMask(const QVariantMap &image, const QVariantMap &subjectSettings) {
    select(Selection::Mask, [this, input = EngineRequests::input(image),
                             subjectSettings](ProcessingBackend &engine, const RunControl &control) {
        const SubjectMasks masks = engine.subjectMasks(input, subjectSettings, control);
        return [this, uid = input.uid, masks] { Q_EMIT maskGenerated(uid, masks.hashes, masks.textures); };
    });
}

void TEngineController::updateSelectionMaskHover(const QVariantMap &image, const QVariantMap &subjectSettings,
                                                 const QPointF &position) {
    select(Selection::Hover, [this, input = EngineRequests::input(image), subjectSettings,
                              position](ProcessingBackend &engine, const RunControl &control) {
        const QVariant mask =
            QVariant::fromValue(engine.hoverMask(input, subjectSettings, position, control));
        return [this, mask] { Q_EMIT subjectMaskHoverUpdated(mask); };
    });
}

void TEngineController::generateSuperpixels(const QVariantMap &image, double brushSize) {
    select(Selection::Superpixels, [this, input = EngineRequests::input(image),
                                    brushSize](ProcessingBackend &engine, const RunControl &control) {
        const QVariant pixels = QVariant::fromValue(engine.superpixels(input, brushSize, control));
        return [this, uid = input.uid, brushSize, pixels] {
            Q_EMIT superpixelsGenerated(uid, brushSize, pixels);
        };
    });
}

void TEngineController::calculateBoundingBox(const QVariantMap &image, const QVariantMap &selection) {
    select(Selection::BoundingBox, [this, input = EngineRequests::input(image),
                                    selection](ProcessingBackend &engine, const RunControl &control) {
        const QRectF box = engine.boundingBox(input, selection, control);
        return [this, box] { Q_EMIT boundingBoxCalculated(box); };
    });
}

void TEngineController::cacheSamEncoder(const QVariantMap &image) {
    m_warmUp.request_stop();
    m_warmUp = m_analyses.post(
        [this, engine = backend(), input = EngineRequests::input(image)](const std::stop_token &stop) {
            if (!stop.stop_requested())
                engine->warmSelection(input, {stop, {}});
            m_mailbox.post([this] {
                if (--m_warming == 0)
                    Q_EMIT preCachingPostProcModelsChanged();
            });
        });
    if (++m_warming == 1)
        Q_EMIT preCachingPostProcModelsChanged();
}

void TEngineController::hashInstaller(const QString &downloadUrl) {
    m_files.post([this, downloadUrl](const std::stop_token &stop) {
        const QString hash = hashOf(TempFolders::installerOf(downloadUrl), stop);
        m_mailbox.post([this, downloadUrl, hash] { Q_EMIT hashCalculated(downloadUrl, hash); });
    });
}
