#include "contracts/FilterNames.h"
#include "model/TControls.h"

#include <QDebug>

void TControls::setModel(const QString &category, const QString &model) {
    if (model.isEmpty())
        return;
    const bool moved = category != m_currentCategory;
    if (moved) {
        m_currentCategory = category;
        Q_EMIT currentCategoryChanged();
    }
    const bool changed = currentSettings().setModel(category, model);
    if (changed)
        Q_EMIT currentModelChanged();
    if (!moved && !changed)
        return;
    qInfo() << "Controls changed";
    emitParamSignals(false);
}

void TControls::setActiveCategory(const QString &category) {
    if (category == m_currentCategory)
        return;
    m_currentCategory = category;
    Q_EMIT currentCategoryChanged();
    Q_EMIT currentModelChanged();
    Q_EMIT subjectSettingsChanged(subjectSettings());
}

bool TControls::setParam(const QString &category, const QString &key, const QVariant &value) {
    const bool changed = currentSettings().setParam(category, key, value);
    if (changed)
        emitParamSignals(key == Keys::Enabled);
    return changed;
}

bool TControls::setParams(const QString &category, const QVariantMap &params) {
    const bool changed = currentSettings().mergeFilter(category, params);
    if (changed)
        emitParamSignals(params.contains(Keys::Enabled));
    return changed;
}

bool TControls::removeKeyFromControlParams(const QString &category, const QString &key) {
    const bool removed = currentSettings().removeParam(category, key);
    if (removed) {
        propagateControlChanges();
        Q_EMIT currentControlsChanged();
    }
    return removed;
}

bool TControls::removeFilterControl(const QString &category) {
    const bool removed = currentSettings().removeFilter(category);
    if (removed) {
        propagateControlChanges();
        Q_EMIT currentControlsChanged();
    }
    return removed;
}

TCategorySettings TControls::startOf(const QString &category) const {
    const QString model = m_modelNames.value(category).toList().value(0).toString();
    return {category, model, m_defaultParams.value(category).toMap().value(model).toMap(), false};
}

void TControls::initializeFilter(const QString &filterName, const QString &category) {
    currentSettings().initializeFilter(filterName, startOf(category));
}

QStringList TControls::filterOrder() const {
    return currentSettings().filterOrder;
}

QStringList TControls::getFilterOrder(int index) const {
    return m_loadedImages.holdsIndex(index) ? settingsOf(pathAt(index)).filterOrder : QStringList();
}

void TControls::setFilterOrder(const QStringList &order, const QString &imagePath) {
    settingsOf(orCurrent(imagePath)).setFilterOrder(order);
    Q_EMIT currentControlsChanged();
    Q_EMIT filterOrderChanged();
    propagateControlChanges();
}

bool TControls::areFiltersEnabledForImage(qint64 index) const {
    return !getFilterNamesForFilename(index).isEmpty();
}

QString TControls::getFilterNamesForFilename(qint64 index) const {
    return m_loadedImages.holdsIndex(index) ? settingsOf(pathAt(index)).filterNamesForFilename() : QString();
}

void TControls::setCurrentInpaintStrokes(const QVariantList &strokes) {
    m_currentInpaintStrokes = strokes;
    Q_EMIT currentInpaintStrokesChanged();
}
