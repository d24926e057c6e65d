#include "frontends/TImageReader.h"

#include "frontends/ProgressGate.h"
#include "system/TempFolders.h"

#include <QDebug>
#include <QFile>

namespace {

QString newUid(const QString &path) {
    static quint64 loads = 0;
    return path + u'#' + QString::number(++loads);
}

} // namespace

TImageReader::TImageReader(QObject *parent)
    : TImageReader(nullptr, parent) {
}

TImageReader::TImageReader(std::shared_ptr<ImageFileBackend> backend, QObject *parent)
    : QObject(parent)
    , m_ownBackend(std::move(backend)) {
}

TImageReader::~TImageReader() = default;

void TImageReader::setFilepath(const QString &path) {
    if (m_filepath == path)
        return;
    m_filepath = path;
    Q_EMIT filepathChanged();
    if (m_filepath == path)
        reload();
}

void TImageReader::clear() {
    setFilepath(QString());
    setError(QString());
}

void TImageReader::reload() {
    abandon();
    setError(QString());
    if (!m_filepath.isEmpty()) {
        load();
    } else if (!m_imagedata.isEmpty()) {
        m_imagedata.clear();
        Q_EMIT imagedataChanged();
    }
}

void TImageReader::setApplyLensCorrection(bool apply) {
    if (m_applyLensCorrection == apply)
        return;
    m_applyLensCorrection = apply;
    Q_EMIT applyLensCorrectionChanged();
}

void TImageReader::load() {
    const auto backend = m_ownBackend ? m_ownBackend : imageFileBackend();
    const ReadRequest request{m_filepath, m_applyLensCorrection};
    m_load = m_work.post([this, backend, request](const std::stop_token &stop) {
        if (stop.stop_requested())
            return;
        ProgressGate gate;
        const RunControl control{stop, [this, stop, &gate](double fraction, const QString &stage) {
                                     if (gate.admits(fraction, stage))
                                         m_mailbox.post([this, stop, stage] {
                                             if (!stop.stop_requested())
                                                 setStatus(stage);
                                         });
                                 }};
        const ReadResult result = backend->read(request, control);
        m_mailbox.post([this, stop, result] {
            if (!stop.stop_requested())
                accept(result);
        });
    });
    setLoading(true);
}

// A load is stale exactly when its token is stopped.
void TImageReader::abandon() {
    if (m_load)
        m_load->request_stop();
    m_load.reset();
    setStatus(QString());
    setLoading(false);
}

void TImageReader::accept(const ReadResult &result) {
    m_load.reset();
    const bool failed =
        result.cancelled || !result.error.isEmpty() || !result.image || result.image->isNull();
    if (!failed) {
        const QString thumbnail = TempFolders::thumbnailOf(m_filepath);
        m_imagedata = {{QStringLiteral("uid"), newUid(m_filepath)},
                       {QStringLiteral("image"), QVariant::fromValue(result.image)},
                       {QStringLiteral("filepath"), m_filepath},
                       {QStringLiteral("metadata"), result.metadata},
                       {QStringLiteral("resolution"), result.resolution},
                       {QStringLiteral("resolutionUnit"), result.resolutionUnit},
                       {QStringLiteral("thumbnail"), QFile::exists(thumbnail) ? thumbnail : QString()}};
    }
    setStatus(QString());
    setLoading(false);
    if (!failed) {
        Q_EMIT imagedataChanged();
        return;
    }
    const QString error =
        result.error.isEmpty() ? tr("The file %1 could not be read.").arg(m_filepath) : result.error;
    qWarning().noquote() << "Cannot read" << m_filepath << ":" << error;
    setError(error);
}

void TImageReader::setError(const QString &error) {
    if (m_error == error)
        return;
    m_error = error;
    Q_EMIT errorChanged();
}

void TImageReader::setLoading(bool loading) {
    if (m_loading == loading)
        return;
    m_loading = loading;
    Q_EMIT loadingChanged();
}

void TImageReader::setStatus(const QString &status) {
    if (m_status == status)
        return;
    m_status = status;
    Q_EMIT statusChanged();
}
