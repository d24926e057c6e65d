#include "contracts/FilterNames.h"
#include "frontends/PreferenceTable.h"
#include "frontends/TImageUtils.h"
#include "model/TControls.h"
#include "system/OSUtils.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

constexpr int UploadLimit = 70 * 1024 * 1024;

QVariantMap newImageData(const QString &path) {
    return {{u"filepath"_s, path},
            {u"fileSize"_s, QFile(path).size()},
            {u"cropRoi"_s, QRectF(0, 0, 1, 1)},
            {u"rotation"_s, 0},
            {u"cropRatio"_s, QSizeF(0, 0)}};
}

QStringList recentFiles() {
    return storedPreference(QSettings(), u"recentFiles").toStringList();
}

} // namespace

void TControls::loadImages(const QStringList &urls, bool dontSwitchImages) {
    const qsizetype before = m_loadedImages.size();
    qsizetype target = before;
    bool duplicateSeen = false;
    QStringList opened;
    m_loadedImages.reserve(before + urls.size());
    for (const QString &url : urls) {
        if (m_loadedImages.insert(url)) {
            opened.append(url);
            m_imageSettings.insert(url, TImageSettings());
            m_imageData.insert(url, newImageData(url));
        } else if (!duplicateSeen) {
            duplicateSeen = true;
            target = m_loadedImages.list().indexOf(url);
        }
    }
    if (opened.isEmpty()) {
        if (!dontSwitchImages)
            setCurrentIndex(target);
        return;
    }
    if (!dontSwitchImages)
        setCurrentIndex(before);
    Q_EMIT loadedImagesChanged();
    Q_EMIT imagesOpened(opened);
}

void TControls::setCurrentIndex(qint64 index, bool forceUpdate) {
    if (index != -1 && !m_loadedImages.holdsIndex(index)) {
        qCritical() << "Attempted to set index out of range:" << m_loadedImages.size()
                    << "images loaded, but setting index to" << index;
        return;
    }
    if (index == m_currentIndex && !forceUpdate)
        return;
    // What was begun on the image that is left is a step of its own.
    if (m_editHistories.contains(currentImage()))
        recordEdit();
    m_currentIndex = index;
    const QString path = pathAt(index);
    Q_EMIT currentIndexChanged();
    emitCurrentImageSignals();
    Q_EMIT editHistoryChanged();
    if (index == -1)
        return;
    m_viewOrder.removeAll(path);
    m_viewOrder.append(path);
}

void TControls::forget(const QString &path, const QStringList &recent) {
    const QVariantMap data = m_imageData.value(path);
    // The recent-files view goes on showing the thumbnails of its files.
    if (!data.isEmpty() && !recent.contains(data.value(u"filepath"_s).toString())) {
        const QString thumbnail = data.value(u"thumbnail"_s).toString();
        if (!thumbnail.isEmpty() && thumbnail != path)
            QFile::remove(thumbnail);
    }
    m_imageSettings.remove(path);
    m_imageData.remove(path);
    m_editHistories.remove(path);
}

void TControls::closeImage(qint64 index) {
    if (!m_loadedImages.holdsIndex(index)) {
        qCritical() << "Attempted to close image index out of range:" << m_loadedImages.size()
                    << "images loaded, but closing index" << index;
        return;
    }
    const QString path = pathAt(index);
    m_loadedImages.remove(path);
    forget(path, recentFiles());
    if (m_selectedImages.remove(int(index)))
        Q_EMIT selectedImagesChanged();
    Q_EMIT loadedImagesChanged();
    Q_EMIT imagesClosed(1);
}

void TControls::closeSelectedImages() {
    if (!m_selectedImages.isEmpty()) {
        const int total = int(m_selectedImages.size());
        const QStringList recent = recentFiles();
        QSet<QString> closed;
        for (const int index : m_selectedImages.list()) {
            if (!m_loadedImages.holdsIndex(index))
                continue;
            closed.insert(pathAt(index));
            forget(pathAt(index), recent);
        }
        m_loadedImages.subtract(closed);
        m_selectedImages.clear();
        Q_EMIT selectedImagesChanged();
        Q_EMIT loadedImagesChanged();
        Q_EMIT imagesClosed(total);
    }
    if (m_loadedImages.isEmpty())
        setCurrentIndex(-1);
    else
        setCurrentIndex(0, true);
}

void TControls::reset() {
    if (!m_loadedImages.isEmpty()) {
        m_selectedImages.clear();
        Q_EMIT selectedImagesChanged();
        const int total = int(m_loadedImages.size());
        m_loadedImages.clear();
        Q_EMIT loadedImagesChanged();
        Q_EMIT imagesClosed(total);
    }
    m_imageSettings.clear();
    m_editHistories.clear();
    setCurrentIndex(-1);
}

void TControls::setSelectedImages(const QList<int> &files) {
    m_selectedImages.clear();
    for (const int index : files)
        m_selectedImages.insert(index);
    Q_EMIT selectedImagesChanged();
}

void TControls::cleanupThumbnails() {
    OSUtils::clearThumbnailTempFiles();
}

QVariantMap TControls::getControls(qint64 index) const {
    if (!m_loadedImages.holdsIndex(index)) {
        qCritical() << "Getting controls from an invalid index:" << m_loadedImages.size()
                    << "images loaded, but using index of" << index;
        return {};
    }
    return settingsOf(pathAt(index)).toMap();
}

QVariantMap TControls::getImageData(qint64 index) const {
    if (!m_loadedImages.holdsIndex(index)) {
        qCritical() << "Getting data from an invalid index:" << m_loadedImages.size()
                    << "images loaded, but using index of" << index;
        return {};
    }
    return m_imageData.value(pathAt(index));
}

QVariantList TControls::allImageData() const {
    QVariantList all;
    for (const QString &path : m_loadedImages.list())
        all.append(m_imageData.value(path));
    return all;
}

void TControls::setThumbnail(qint64 index, const QString &thumbnail) {
    const auto data = m_imageData.find(pathAt(index));
    if (!m_loadedImages.holdsIndex(index) || thumbnail.isEmpty() || data == m_imageData.end())
        return;
    if (data->value(u"thumbnail"_s) == thumbnail)
        return;
    data->insert(u"thumbnail"_s, thumbnail);
    if (index == m_currentIndex)
        Q_EMIT currentImageDataChanged();
    Q_EMIT imageDataChanged(quint64(index));
}

int TControls::indexOf(const QString &imagePath) const {
    return m_loadedImages.contains(imagePath) ? int(m_loadedImages.list().indexOf(imagePath)) : -1;
}

void TControls::setJustSaved(qint64 index) {
    if (m_loadedImages.holdsIndex(index))
        settingsOf(pathAt(index)).justSaved = true;
}

bool TControls::isFileUploadable(const QString &imagePath) const {
    if (!m_loadedImages.contains(imagePath) ||
        !TImageUtils::rawFileFormats().contains(QFileInfo(imagePath).completeSuffix().toLower()))
        return false;
    const int fileSize = m_imageData.value(imagePath).value(u"fileSize"_s).toInt();
    return fileSize != 0 && fileSize < UploadLimit;
}

bool TControls::hasS3UploadableImages() const {
    return std::any_of(m_imageSettings.keyBegin(), m_imageSettings.keyEnd(), [this](const QString &path) {
        return isFileUploadable(path) && (isModifiedFromAutopilot(path) || isSubjectModified(path));
    });
}
