#pragma once

#include "frontends/FileBackends.h"
#include "frontends/Mailbox.h"
#include "frontends/SizeEstimator.h"
#include "frontends/WorkQueue.h"

#include <QObject>
#include <QVariantMap>
#include <QtQmlIntegration/qqmlintegration.h>

#include <deque>

/// Writes images in the background, one at a time in the order of saveImage. Each saveImage is
/// answered by exactly one imageSaved or errorSaving for its output path. Destruction loses no
/// picture: it waits until everything queued is written, without further signals, except for
/// writes that were cancelled.
class TImageWriter : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool canWrite READ canWrite NOTIFY canWriteChanged)

public:
    explicit TImageWriter(QObject *parent = nullptr);
    /// With a back end of its own instead of the shared one.
    explicit TImageWriter(std::shared_ptr<ImageFileBackend> backend, QObject *parent = nullptr);
    ~TImageWriter() override;

    /// False while as many images wait or are being written as the limits allow.
    bool canWrite() const { return m_canWrite; }
    /// At most `images` images and, with more than one of them, `bytes` bytes of pixels. Two and 2 GiB at
    /// first.
    void setQueueLimits(int images, qint64 bytes);

    /// Takes the image whatever canWrite says: the limit asks callers to wait, it never drops a picture.
    Q_INVOKABLE void saveImage(const std::shared_ptr<ImageData> &image, const QString &inputPath,
                               const QString &outputPath, const QVariantMap &imageData,
                               const QVariantMap &options);
    /// Abandons the writes to this output path; each reports errorSaving.
    Q_INVOKABLE void cancelExport(const QString &outputPath);

    /// Answered by fileSizeEstimated, or by errorSaving with the image's `filepath`.
    Q_INVOKABLE void estimateFileSize(const QVariantMap &imageData, const QString &extension,
                                      const QVariantMap &options);
    /// The same for a file that keeps its format, with the image library's own defaults.
    Q_INVOKABLE void estimateFileSizeRequest(const QVariantMap &imageData);

Q_SIGNALS:
    void canWriteChanged();
    void imageSaved(const QString &path, qlonglong size);
    void errorSaving(const QString &path, const QString &why);
    /// Comes just before imageSaved when the file could not be written in the format that the path
    /// asks for and lies at another one.
    void savedElsewhere(const QString &path, const QString &writtenPath);
    void writeProgress(const QString &path, double progress);
    /// `id` is the image's `filepath`; extension and options are those of the request.
    void fileSizeEstimated(const QString &id, const QString &extension, const QVariantMap &saveOptions,
                           qlonglong fileSize);
    /// A raw negative is being written without make and model of its camera.
    void missingCameraInfo(const QString &make, const QString &model);

private:
    struct Write {
        QString path;
        qint64 bytes = 0;
        std::stop_source stop;
    };

    std::shared_ptr<ImageFileBackend> backend() const;
    void settle(const WriteResult &result);
    void updateCanWrite();

    std::shared_ptr<ImageFileBackend> m_ownBackend;
    std::deque<Write> m_writes; ///< in the order of their answers
    int m_imageLimit = 2;
    qint64 m_byteLimit = qint64(2) << 30;
    bool m_canWrite = true;
    Mailbox m_mailbox;
    SizeEstimator m_estimates;
    WorkQueue m_work;
};
