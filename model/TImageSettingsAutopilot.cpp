#include "contracts/FilterNames.h"
#include "model/TImageSettings.h"

#include <QSet>

namespace {

QVariantMap normalised(const QVariantMap &entry) {
    static const QSet<QString> fixed = {Keys::Category, Keys::Model, Keys::Enabled, Keys::SubjectSettings,
                                        Keys::Params};
    QVariantMap params = entry.value(Keys::Params).toMap();
    for (const auto &[key, value] : entry.asKeyValueRange()) {
        if (!fixed.contains(key))
            params.insert(key, value);
    }
    QVariantMap out = entry;
    out.insert(Keys::Params, params);
    return out;
}

} // namespace

void TImageSettings::setAutopilotSettings(const QVariantMap &settings) {
    QVariantMap all;
    for (const auto &[category, entry] : settings.asKeyValueRange())
        all.insert(category, normalised(entry.toMap()));
    autoPilotSettings = all;
    markChanged();
}

bool TImageSettings::mergeAutopilot(const QString &filterName, const QString &category) {
    TCategorySettings &filter = filterControls[filterName];
    const bool changed = filter.merge(autoPilotSettings.value(category).toMap());
    filter.category = category;
    return changed;
}

bool TImageSettings::adoptAutopilot(const QString &category) {
    const bool changed = mergeAutopilot(category, category);
    setFilterOrder(filterOrder + QStringList(category));
    return markIf(changed);
}

bool TImageSettings::adoptAutopilot(const QString &filterName, const QString &category) {
    return markIf(mergeAutopilot(filterName, category));
}

void TImageSettings::applyAutopilot() {
    filterControls.clear();
    filterOrder.clear();
    bool changed = false;
    if (!isAutopilotCalculated()) {
        applyAutopilotOnceCalculated = true;
        changed = true;
    }
    for (const auto &[category, entry] : std::as_const(autoPilotSettings).asKeyValueRange()) {
        if (entry.toMap().value(Keys::Enabled).toBool())
            changed |= adoptAutopilot(category);
    }
    markIf(changed);
}

bool TImageSettings::isModifiedFromAutopilot() const {
    if (filterOrder.isEmpty() || filterNamesForFilename().isEmpty() || !isAutopilotCalculated())
        return true;
    for (const auto &[category, entry] : autoPilotSettings.asKeyValueRange()) {
        if (entry.toMap().value(Keys::Enabled) == QVariant(true) && !filterControls.contains(category))
            return true;
    }
    QSet<QString> seen;
    for (const TCategorySettings &filter : filterControls) {
        if (seen.contains(filter.category) ||
            !filter.matches(autoPilotSettings.value(filter.category).toMap()))
            return true;
        seen.insert(filter.category);
    }
    return false;
}

bool TImageSettings::isModifiedFromAutopilot(const QString &filterName, const QString &category) const {
    return !filter(filterName).matches(autoPilotSettings.value(category).toMap());
}
