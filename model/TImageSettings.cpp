#include "model/TImageSettings.h"

#include "contracts/FilterNames.h"

using namespace Qt::StringLiterals;

namespace {

template <typename T>
bool replace(T &field, const T &value) {
    if (field == value)
        return false;
    field = value;
    return true;
}

} // namespace

QVariantMap TImageSettings::toMap() const {
    QVariantMap map;
    for (const auto &[name, filter] : filterControls.asKeyValueRange())
        map.insert(map.cend(), name, filter.toMap());
    map.insert(Keys::AutoPilot, int(autoPilot));
    map.insert(Keys::AutoPilotSettings, autoPilotSettings);
    map.insert(Keys::JustSaved, justSaved);
    map.insert(Keys::NoiseLevel, int(noise_level));
    map.insert(Keys::BlurLevel, int(blur_level));
    map.insert(u"applyAutopilotOnceCalculated"_s, applyAutopilotOnceCalculated);
    map.insert(u"presetApplied"_s, presetApplied);
    map.insert(u"presetAppliedNoModifications"_s, presetAppliedNoModifications);
    map.insert(Keys::ChangesCount, int(changesCount));
    map.insert(u"initialFiltersApplied"_s, initialFiltersApplied);
    return map;
}

TCategorySettings TImageSettings::filter(const QString &filterName) const {
    return filterControls.value(filterName);
}

void TImageSettings::markChanged() {
    ++changesCount;
    justSaved = false;
    presetAppliedNoModifications = false;
}

bool TImageSettings::markIf(bool changed) {
    if (changed)
        markChanged();
    return changed;
}

bool TImageSettings::setModel(const QString &filterName, const QString &model) {
    return markIf(replace(filterControls[filterName].model, model));
}

bool TImageSettings::setParam(const QString &filterName, const QString &key, const QVariant &value) {
    return markIf(filterControls[filterName].setParam(key, value));
}

bool TImageSettings::mergeFilter(const QString &filterName, const QVariantMap &map) {
    return markIf(filterControls[filterName].merge(map));
}

bool TImageSettings::mergeControls(const QVariantMap &controls) {
    bool changed = false;
    for (const auto &[name, value] : controls.asKeyValueRange()) {
        if (name != Keys::AutoPilotSettings)
            changed |= filterControls[name].merge(value.toMap());
    }
    return markIf(changed);
}

bool TImageSettings::removeParam(const QString &filterName, const QString &key) {
    const auto found = filterControls.find(filterName);
    return markIf(found != filterControls.end() && found->params.remove(key) > 0);
}

bool TImageSettings::removeFilter(const QString &filterName) {
    return markIf(filterControls.remove(filterName) > 0);
}

bool TImageSettings::setFilterOrder(const QStringList &order) {
    return markIf(replace(filterOrder, order));
}

bool TImageSettings::setSubjectSettings(const QString &filterName, const QVariantMap &settings) {
    if (settings.isEmpty())
        return false;
    filterControls[filterName].subjectSettings.insert(settings);
    return markIf(true);
}

void TImageSettings::initializeFilter(const QString &filterName, const TCategorySettings &start) {
    filterControls.insert(filterName, start);
    ++changesCount;
}

void TImageSettings::resetSubject(const QString &filterName, const QString &type) {
    filterControls[filterName].resetSubject(type);
    ++changesCount;
}

bool TImageSettings::setAutoPilotStatus(AutoPilotStatus status) {
    return markIf(replace(autoPilot, status));
}

bool TImageSettings::setNoiseLevel(Autopilot::Level level) {
    return markIf(replace(noise_level, level));
}

bool TImageSettings::setBlurLevel(Autopilot::Level level) {
    return markIf(replace(blur_level, level));
}
