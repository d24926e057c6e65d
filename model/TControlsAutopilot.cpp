#include "model/TControls.h"

void TControls::setAutopilotSettings(const QVariantMap &settings) {
    currentSettings().setAutopilotSettings(settings);
    propagateControlChanges();
    Q_EMIT autoPilotCalculated(currentImage());
}

void TControls::setAutoPilotStatus(TImageSettings::AutoPilotStatus status) {
    if (currentSettings().setAutoPilotStatus(status))
        emitParamSignals(false);
}

void TControls::applyAutopilotToImage() {
    applyAutopilotToImage(currentImage(), false);
}

void TControls::applyAutopilotToImage(const QString &imagePath, bool allowEmit) {
    const QString path = orCurrent(imagePath);
    TImageSettings &settings = settingsOf(path);
    settings.applyAutopilot();
    settings.initialFiltersApplied = true;
    Q_EMIT autoPilotApplied(path);
    if (allowEmit)
        propagateControlChanges();
}

void TControls::resetToAuto(const QString &category) {
    if (currentSettings().adoptAutopilot(category))
        propagateControlChanges();
}

void TControls::resetToAuto(const QString &filterName, const QString &category) {
    if (currentSettings().adoptAutopilot(filterName, category))
        propagateControlChanges();
}

bool TControls::isAutopilotCalculated(const QString &imagePath) const {
    return settingsOf(orCurrent(imagePath)).isAutopilotCalculated();
}

bool TControls::isModifiedFromAutopilot(const QString &imagePath) const {
    return settingsOf(orCurrent(imagePath)).isModifiedFromAutopilot();
}

bool TControls::isModifiedFromAutopilot(const QString &filterName, const QString &category) const {
    return currentSettings().isModifiedFromAutopilot(filterName, category);
}

void TControls::markInitialFiltersApplied() {
    currentSettings().initialFiltersApplied = true;
}

void TControls::resetManualAPCheck() {
    currentSettings().applyAutopilotOnceCalculated = false;
}

void TControls::setNoiseLevel(Autopilot::Level level) {
    if (currentSettings().setNoiseLevel(level))
        Q_EMIT currentControlsChanged();
}

void TControls::setBlurLevel(Autopilot::Level level) {
    if (currentSettings().setBlurLevel(level))
        Q_EMIT currentControlsChanged();
}

QList<QVariantMap> TControls::autoPilotSuggestionOrder() const {
    return currentSettings().autoPilotSuggestionOrder;
}

QList<QVariantMap> TControls::getAutoPilotSuggestionOrder(int index) const {
    if (!m_loadedImages.holdsIndex(index))
        return {};
    return settingsOf(pathAt(index)).autoPilotSuggestionOrder;
}

void TControls::setAutoPilotSuggestionOrder(const QList<QVariantMap> &order, const QString &imagePath) {
    settingsOf(orCurrent(imagePath)).autoPilotSuggestionOrder = order;
    Q_EMIT autoPilotSuggestionOrderChanged();
}
