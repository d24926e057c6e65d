#include "frontends/TThumbnailWriter.h"

#include "system/TempFolders.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QVariantMap>

#include <algorithm>

namespace {

constexpr int Side = 512;

/// Empty when it worked. The picture gets its name when it is whole, since other windows of the
/// program look for it too.
QString writeThumbnail(ImageFileBackend &backend, const QString &path, const QString &target,
                       const std::stop_token &stop) {
    if (QFile::exists(target))
        return {};
    if (!TempFolders::make(TempFolders::thumbnails()))
        return QStringLiteral("The folder for thumbnails can't be made.");
    const QString part =
        target.chopped(4) + QStringLiteral(".%1.jpg").arg(QCoreApplication::applicationPid());
    const WriteResult result = backend.writeThumbnail(path, part, Side, {stop, {}});
    const bool whole = result.error.isEmpty() && !result.cancelled;
    if (!whole || !QFile::rename(part, target))
        QFile::remove(part);
    if (whole && QFile::exists(target))
        return {};
    return result.error.isEmpty() ? QStringLiteral("The thumbnail could not be finished.") : result.error;
}

} // namespace

TThumbnailWriter::TThumbnailWriter(QObject *parent)
    : TThumbnailWriter(nullptr, parent) {
}

TThumbnailWriter::TThumbnailWriter(std::shared_ptr<ImageFileBackend> backend, QObject *parent)
    : QObject(parent)
    , m_ownBackend(std::move(backend)) {
}

TThumbnailWriter::~TThumbnailWriter() = default;

void TThumbnailWriter::setImageDatas(const QVariantList &imageDatas) {
    if (m_imageDatas == imageDatas)
        return;
    m_imageDatas = imageDatas;
    Q_EMIT imageDatasChanged();
}

void TThumbnailWriter::setImageData(int index, const QVariantMap &imageData) {
    if (index < 0 || index >= m_imageDatas.size() || m_imageDatas.at(index) == imageData)
        return;
    m_imageDatas[index] = imageData;
    Q_EMIT imageDatasChanged();
}

void TThumbnailWriter::setStartIndex(int index) {
    setIndex(m_startIndex, index, &TThumbnailWriter::startIndexChanged);
}

void TThumbnailWriter::setEndIndex(int index) {
    setIndex(m_endIndex, index, &TThumbnailWriter::endIndexChanged);
}

void TThumbnailWriter::setCurrentIndex(int index) {
    setIndex(m_currentIndex, index, &TThumbnailWriter::currentIndexChanged);
}

void TThumbnailWriter::setIndex(int &member, int index, void (TThumbnailWriter::*changed)()) {
    if (member == index)
        return;
    member = index;
    Q_EMIT(this->*changed)();
    Q_EMIT indexUpdated();
}

void TThumbnailWriter::startGenerating() {
    m_plan.request_stop();
    m_plan = std::stop_source();
    const auto backend = m_ownBackend ? m_ownBackend : imageFileBackend();
    for (const int index : wantedIndices()) {
        const QVariantMap image = m_imageDatas.at(index).toMap();
        const QString path = image.value(QStringLiteral("filepath")).toString();
        const bool has = !image.value(QStringLiteral("thumbnail")).toString().isEmpty();
        if (!has && !path.isEmpty() && !m_failed.contains(path))
            generate(index, path, backend);
    }
}

QList<int> TThumbnailWriter::wantedIndices() const {
    const int count = int(m_imageDatas.size());
    const int last = m_endIndex < 0 ? count - 1 : std::min(m_endIndex, count - 1);
    QList<int> indices;
    if (m_currentIndex >= 0 && m_currentIndex < count)
        indices.append(m_currentIndex);
    for (int index = std::max(m_startIndex, 0); index <= last; ++index) {
        if (index != m_currentIndex)
            indices.append(index);
    }
    return indices;
}

// A new plan only drops what has not begun: otherwise a steady scroll would never see one finished.
void TThumbnailWriter::generate(int index, const QString &path,
                                const std::shared_ptr<ImageFileBackend> &backend) {
    m_work.post([this, plan = m_plan.get_token(), index, path, backend](const std::stop_token &stop) {
        if (plan.stop_requested())
            return;
        const QString target = TempFolders::thumbnailOf(path);
        const QString error = writeThumbnail(*backend, path, target, stop);
        m_mailbox.post([this, index, path, target, error] {
            if (error.isEmpty()) {
                Q_EMIT thumbnailWritten(index, path, target);
            } else if (!m_failed.contains(path)) {
                m_failed.insert(path);
                qWarning().noquote() << "No thumbnail for" << path << ":" << error;
            }
        });
    });
}
