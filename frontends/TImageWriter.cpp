#include "frontends/TImageWriter.h"

#include "frontends/ImageDataUtils.h"
#include "frontends/ProgressGate.h"
#include "frontends/TImageUtils.h"

#include <QDebug>

#include <numeric>

namespace {

WriteResult write(ImageFileBackend &backend, const WriteRequest &request, const RunControl &control) {
    if (control.stopped())
        return {.cancelled = true};
    if (!request.image || request.image->isNull())
        return {.error = TImageWriter::tr("There is no picture to write.")};
    if (request.outputPath.isEmpty())
        return {.error = TImageWriter::tr("There is no path to write the picture to.")};
    return backend.write(request, control);
}

} // namespace

TImageWriter::TImageWriter(QObject *parent)
    : TImageWriter(nullptr, parent) {
}

TImageWriter::TImageWriter(std::shared_ptr<ImageFileBackend> backend, QObject *parent)
    : QObject(parent)
    , m_ownBackend(std::move(backend))
    , m_estimates([this](const SizeEstimator::Question &question, const WriteResult &result) {
        if (result.error.isEmpty())
            Q_EMIT fileSizeEstimated(question.filepath, question.extension, question.options,
                                     result.fileSize);
        else
            Q_EMIT errorSaving(question.filepath, result.error);
    }) {
}

TImageWriter::~TImageWriter() {
    m_work.finish();
}

void TImageWriter::setQueueLimits(int images, qint64 bytes) {
    m_imageLimit = images;
    m_byteLimit = bytes;
    updateCanWrite();
}

void TImageWriter::saveImage(const std::shared_ptr<ImageData> &image, const QString &inputPath,
                             const QString &outputPath, const QVariantMap &imageData,
                             const QVariantMap &options) {
    const WriteRequest request{image, inputPath, outputPath, imageData, options};
    const auto job = [this, backend = backend(), request](const std::stop_token &stop) {
        ProgressGate gate;
        const auto report = [this, stop, &gate, path = request.outputPath](double fraction,
                                                                           const QString &stage) {
            if (gate.admits(fraction, stage))
                m_mailbox.post([this, stop, path, fraction] {
                    if (!stop.stop_requested())
                        Q_EMIT writeProgress(path, fraction);
                });
        };
        const WriteResult result = write(*backend, request, {stop, report});
        m_mailbox.post([this, result] { settle(result); });
    };
    m_writes.push_back({outputPath, image ? qint64(image->byteCount()) : 0, m_work.post(job)});
    updateCanWrite();

    const QVariantMap metadata = imageData.value(QStringLiteral("metadata")).toMap();
    if (TImageUtils::getExtension(outputPath).toLower() == QStringLiteral("dng") &&
        ImageDataUtils::isCameraInfoMissing(metadata))
        Q_EMIT missingCameraInfo(metadata.value(QStringLiteral("make")).toString(),
                                 metadata.value(QStringLiteral("model")).toString());
}

void TImageWriter::cancelExport(const QString &outputPath) {
    for (Write &write : m_writes) {
        if (write.path == outputPath)
            write.stop.request_stop();
    }
}

void TImageWriter::estimateFileSize(const QVariantMap &imageData, const QString &extension,
                                    const QVariantMap &options) {
    m_estimates.ask(backend(), imageData, extension, options);
}

void TImageWriter::estimateFileSizeRequest(const QVariantMap &imageData) {
    const QString extension =
        TImageUtils::getExtension(imageData.value(QStringLiteral("filepath")).toString());
    estimateFileSize(imageData, TImageUtils::getExportExtension(extension, QStringLiteral("preserve")), {});
}

std::shared_ptr<ImageFileBackend> TImageWriter::backend() const {
    return m_ownBackend ? m_ownBackend : imageFileBackend();
}

// Writes end in the order in which they were queued. A write that was whole before its cancelling
// reached it counts as saved: the file is there.
void TImageWriter::settle(const WriteResult &result) {
    const QString path = m_writes.front().path;
    m_writes.pop_front();
    if (!result.cancelled && result.error.isEmpty()) {
        if (!result.outputPath.isEmpty() && result.outputPath != path) {
            qWarning().noquote() << "Saved" << path << "as" << result.outputPath;
            Q_EMIT savedElsewhere(path, result.outputPath);
        }
        Q_EMIT imageSaved(path, result.fileSize);
    } else {
        const QString why = result.cancelled ? tr("Saving was cancelled.") : result.error;
        qWarning().noquote() << "Cannot save" << path << ":" << why;
        Q_EMIT errorSaving(path, why);
    }
    updateCanWrite();
}

void TImageWriter::updateCanWrite() {
    const qint64 bytes = std::accumulate(m_writes.begin(), m_writes.end(), qint64(0),
                                         [](qint64 sum, const Write &write) { return sum + write.bytes; });
    const bool canWrite = m_writes.empty() || (int(m_writes.size()) < m_imageLimit && bytes < m_byteLimit);
    if (m_canWrite == canWrite)
        return;
    m_canWrite = canWrite;
    Q_EMIT canWriteChanged();
}
