#pragma once

#include "frontends/FileBackends.h"
#include "frontends/Mailbox.h"
#include "frontends/WorkQueue.h"

#include <QObject>
#include <QVariantMap>
#include <QtQmlIntegration/qqmlintegration.h>

#include <optional>

/// Loads one image file at a time in the background. A new path abandons the load under way, which
/// then never reports. Destruction stops and joins.
class TImageReader : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString filepath READ filepath WRITE setFilepath NOTIFY filepathChanged)
    Q_PROPERTY(QVariantMap imagedata READ imagedata NOTIFY imagedataChanged)
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)
    Q_PROPERTY(bool loading READ loading NOTIFY loadingChanged)
    Q_PROPERTY(QString status READ status NOTIFY statusChanged)
    Q_PROPERTY(bool applyLensCorrection READ applyLensCorrection WRITE setApplyLensCorrection NOTIFY
                   applyLensCorrectionChanged)

public:
    explicit TImageReader(QObject *parent = nullptr);
    /// With a back end of its own instead of the shared one.
    explicit TImageReader(std::shared_ptr<ImageFileBackend> backend, QObject *parent = nullptr);
    ~TImageReader() override;

    QString filepath() const { return m_filepath; }
    /// Starts a load. The path it already has does nothing; an empty one forgets the image.
    void setFilepath(const QString &path);

    /// `uid` (path and a number, new for each load), `image`, `filepath`, `metadata`, `resolution`,
    /// `resolutionUnit`, and `thumbnail`, empty unless one has been written. The last image stays
    /// while another loads or fails to. Empty before the first.
    QVariantMap imagedata() const { return m_imagedata; }

    QString error() const { return m_error; }
    bool loading() const { return m_loading; }
    /// What the load is doing, a few words, empty when idle.
    QString status() const { return m_status; }

    bool applyLensCorrection() const { return m_applyLensCorrection; }
    /// Counts from the next load on.
    void setApplyLensCorrection(bool apply);

    Q_INVOKABLE void clear();
    Q_INVOKABLE void reload();

Q_SIGNALS:
    void filepathChanged();
    void imagedataChanged();
    void errorChanged();
    void loadingChanged();
    void statusChanged();
    void applyLensCorrectionChanged();

private:
    void load();
    void abandon();
    void accept(const ReadResult &result);
    void setError(const QString &error);
    void setLoading(bool loading);
    void setStatus(const QString &status);

    std::shared_ptr<ImageFileBackend> m_ownBackend;
    QString m_filepath;
    QVariantMap m_imagedata;
    QString m_error;
    QString m_status;
    bool m_loading = false;
    bool m_applyLensCorrection = false;
    std::optional<std::stop_source> m_load; ///< the load that may still report
    Mailbox m_mailbox;
    WorkQueue m_work{2}; ///< the second thread starts a new load while an abandoned one winds down
};
