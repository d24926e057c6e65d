#pragma once

#include "cli/BatchOptions.h"
#include "cli/OverrideCheck.h"

#include <QVariantMap>

class TControls;

/// Puts on the current image the filters that Autopilot enabled, adds those of a preset, lays the user's
/// overrides on top, and sets the order of processing. A preset with the override flag stands alone.
/// `autopilot` is Autopilot's answer: category to settings. Overrides that ask for what isn't there are
/// reported with the names that exist; the run goes on.
class SettingsMerge {
public:
    SettingsMerge(TControls &controls, const BatchOptions &options, const QStringList &filterOrder,
                  const QMap<QString, QString> &categories);

    void apply(const QVariantMap &autopilot);

private:
    void initialize(const QString &category, const QVariantMap &settings);
    void applyAutopilot(const QVariantMap &autopilot);
    void applyPreset();
    void applyOverrides(const QVariantMap &autopilot);
    void applyOverride(const QString &filterName, const Override &setting);
    bool hasPreset() const { return !m_options.preset.filterOrder.isEmpty(); }
    QStringList filtersOf(const QString &category) const;
    QVariantMap filterOf(const QString &category) const;
    bool asksForSize(const QList<Override> &overrides) const;
    QString sizeMode() const;
    void settleSize();
    void report(const QString &category, const QList<Override> &overrides);
    void setOrder();

    TControls &m_controls;
    const BatchOptions &m_options;
    const QStringList &m_filterOrder;
    const QMap<QString, QString> &m_categories;
};
