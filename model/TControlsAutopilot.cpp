#include "contracts/FilterNames.h"
#include "model/TControls.h"

namespace {

Autopilot::Level levelOf(int number) {
    const bool known = number >= int(Autopilot::Level::None) && number <= int(Autopilot::Level::Severe);
    return known ? Autopilot::Level(number) : Autopilot::Level::Unknown;
}

} // namespace

void TControls::landAutopilot(const QVariantMap &answer, bool recommendFilters, bool addFilters) {
    setAutoPilotStatus(TImageSettings::On);
    setAutopilotSettings(answer);
    if (addFilters)
        addFirstFilters(recommendFilters);
}

// The flags are set before the order is announced: whoever hears of it finds the record as it stays.
void TControls::addFirstFilters(bool recommendFilters) {
    const TImageSettings before = currentSettings();
    const bool visitedBefore = before.initialFiltersApplied && !before.applyAutopilotOnceCalculated;
    QStringList order = before.filterOrder;
    if (!visitedBefore) {
        if (recommendFilters || before.applyAutopilotOnceCalculated)
            order = adoptRecommendedFilters();
        else if (isRaw())
            order = addRawFilter();
    }
    markInitialFiltersApplied();
    resetManualAPCheck();
    setFilterOrder(order);
}

QStringList TControls::adoptRecommendedFilters() {
    applyAutopilotToImage();
    const QStringList adopted = filterOrder();
    QStringList order = Categories::processingOrder();
    order.removeIf([&adopted](const QString &name) { return !adopted.contains(name); });
    for (const QString &name : std::as_const(order)) {
        if (Categories::takesSubject(name))
            initializeSubject(name);
    }
    return order;
}

// A RAW file is developed whatever the preferences say.
QStringList TControls::addRawFilter() {
    initializeFilter(Categories::Raw, Categories::Raw);
    resetToAuto(Categories::Raw, Categories::Raw);
    setParam(Categories::Raw, Keys::Enabled, true);
    return {Categories::Raw};
}

void TControls::applyRecommendedFilters() {
    setFilterOrder(adoptRecommendedFilters());
}

void TControls::setAutopilotSettings(const QVariantMap &settings) {
    currentSettings().setAutopilotSettings(settings);
    ++m_advicesHeard;
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

void TControls::setNoiseLevel(int level) {
    setNoiseLevel(levelOf(level));
}

void TControls::setBlurLevel(int level) {
    setBlurLevel(levelOf(level));
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
