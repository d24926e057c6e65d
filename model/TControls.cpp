#include "model/TControls.h"

#include "contracts/FilterNames.h"
#include "frontends/TImageUtils.h"

#include <algorithm>

using namespace Qt::StringLiterals;

TControls::TControls(QObject *parent)
    : QObject(parent) {
    qRegisterMetaType<TCategorySettings>();
    qRegisterMetaType<TImageSettings>();
}

QString TControls::pathAt(qint64 index) const {
    return m_loadedImages.holdsIndex(index) ? m_loadedImages.list().at(index) : QString();
}

QString TControls::orCurrent(const QString &imagePath) const {
    return imagePath.isEmpty() ? currentImage() : imagePath;
}

QVariantMap TControls::currentControls() const {
    return currentSettings().toMap();
}

QVariantMap TControls::currentFilter(const QString &filterName) const {
    const auto record = m_imageSettings.constFind(currentImage());
    if (record == m_imageSettings.cend())
        return {};
    const auto filter = record->filterControls.constFind(filterName);
    return filter == record->filterControls.cend() ? QVariantMap() : filter->toMap();
}

bool TControls::isFineAsItIs() const {
    const QVariantMap advice = currentSettings().autoPilotSettings;
    return !advice.isEmpty() && std::ranges::none_of(advice, [](const QVariant &filter) {
        return filter.toMap().value(Keys::Enabled).toBool();
    });
}

QVariantMap TControls::advisedFilter(const QString &category) const {
    return currentSettings().autoPilotSettings.value(category).toMap();
}

QVariantMap TControls::currentImageData() const {
    return m_imageData.value(currentImage());
}

QString TControls::currentModel() const {
    return currentSettings().filter(m_currentCategory).model;
}

QVariantMap TControls::currentGui() const {
    const QVariantMap models = m_modelParamInfo.value(m_currentCategory).toMap();
    return models.value(currentModel()).toMap().value(Keys::Gui).toMap();
}

bool TControls::isRaw() const {
    return TImageUtils::isRawFile(currentImage());
}

void TControls::emitCurrentImageSignals() {
    Q_EMIT currentControlsChanged();
    Q_EMIT subjectSettingsChanged(subjectSettings());
    Q_EMIT currentImageDataChanged();
    Q_EMIT currentImageChanged();
    Q_EMIT currentCategoryChanged();
    Q_EMIT currentModelChanged();
    Q_EMIT currentGuiChanged();
    Q_EMIT hasS3UploadableImagesChanged();
    Q_EMIT isRawChanged();
    Q_EMIT areFiltersEnabledChanged();
}

void TControls::propagateControlChanges() {
    Q_EMIT currentControlsChanged();
    Q_EMIT hasS3UploadableImagesChanged();
    Q_EMIT areFiltersEnabledChanged();
}

void TControls::emitParamSignals(bool enabledToo) {
    Q_EMIT currentControlsChanged();
    Q_EMIT hasS3UploadableImagesChanged();
    if (enabledToo)
        Q_EMIT areFiltersEnabledChanged();
}
