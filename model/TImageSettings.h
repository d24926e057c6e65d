#pragma once

#include "contracts/Autopilot.h"
#include "model/TCategorySettings.h"

#include <QMap>
#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

/// Everything decided about one image. A value over shared containers: copies are cheap. Writers
/// return whether they changed something and mark a change then; see markChanged().
struct TImageSettings {
    Q_GADGET
public:
    enum AutoPilotStatus : qint32 {
        Off = 0,        ///< doesn't use Autopilot
        Processing = 1, ///< waits for a result; every new image does
        Manual = 2,     ///< the settings came from a host application
        On = 3          ///< a result has arrived
    };
    Q_ENUM(AutoPilotStatus)

    enum ResolutionUnit : qint32 { Pixels = 1, Inches = 2, Centimeters = 3 };
    Q_ENUM(ResolutionUnit)

    QMap<QString, TCategorySettings> filterControls; ///< by filter name
    AutoPilotStatus autoPilot = Processing;
    QVariantMap autoPilotSettings;               ///< by category; empty: not calculated
    QStringList filterOrder;                     ///< filter names; may name filters without a record
    QList<QVariantMap> autoPilotSuggestionOrder; ///< `{ filterName, subject }` each
    bool justSaved = false;                      ///< exported, and no change marked since
    bool presetApplied = false;                  ///< stays set
    bool presetAppliedNoModifications = false;   ///< a preset, and no change marked since
    bool initialFiltersApplied = false;          ///< the first set of filters was put on
    Autopilot::Level noise_level = Autopilot::Level::Unknown;
    Autopilot::Level blur_level = Autopilot::Level::Unknown;
    bool applyAutopilotOnceCalculated = false; ///< applied by hand before there was a result
    quint16 changesCount = 0;                  ///< wraps; tells the preview that a result is stale

    /// The controls map: a map per filter, then ten fixed keys, which win over a filter of that name.
    QVariantMap toMap() const;

    /// The filter of that name, or a default one. Creates nothing.
    TCategorySettings filter(const QString &filterName) const;

    /// Counts a change; the image is no longer as it was saved or as a preset left it.
    void markChanged();

    bool setModel(const QString &filterName, const QString &model);
    bool setParam(const QString &filterName, const QString &key, const QVariant &value);
    bool mergeFilter(const QString &filterName, const QVariantMap &map);
    /// Merges every entry but "autoPilotSettings" into the filter of its key.
    bool mergeControls(const QVariantMap &controls);
    bool removeParam(const QString &filterName, const QString &key);
    bool removeFilter(const QString &filterName);
    bool setFilterOrder(const QStringList &order);
    bool setSubjectSettings(const QString &filterName, const QVariantMap &settings);

    /// These two only count a change and leave the flags `justSaved` and
    /// `presetAppliedNoModifications` alone: they prepare a filter that the caller goes on to set.
    void initializeFilter(const QString &filterName, const TCategorySettings &start);
    void resetSubject(const QString &filterName, const QString &type);

    bool setAutoPilotStatus(AutoPilotStatus status);
    bool setNoiseLevel(Autopilot::Level level);
    bool setBlurLevel(Autopilot::Level level);
    bool isAutopilotCalculated() const { return !autoPilotSettings.isEmpty(); }
    /// Keeps Autopilot's answer in its normal form: flat parameters are under "params", too.
    void setAutopilotSettings(const QVariantMap &settings);
    /// Replaces all filters by those that Autopilot enables, in the order of their names.
    void applyAutopilot();
    /// Gives the category's filter Autopilot's values and appends it to the order, even a second
    /// time. True when the filter changed.
    bool adoptAutopilot(const QString &category);
    /// Gives any filter Autopilot's values of a category and leaves the order alone.
    bool adoptAutopilot(const QString &filterName, const QString &category);
    /// Whether the image differs from what Autopilot would give. True without active filters or result.
    bool isModifiedFromAutopilot() const;
    bool isModifiedFromAutopilot(const QString &filterName, const QString &category) const;

    /// What the active filters add to a file name, such as "-denoise-enhance-2x"; empty when none is.
    QString filterNamesForFilename() const;

private:
    bool mergeAutopilot(const QString &filterName, const QString &category);
    bool markIf(bool changed);
};

Q_DECLARE_METATYPE(TImageSettings)

/// Documents read the enumerations; the value itself does not reach them.
namespace TImageSettingsInQml {
Q_NAMESPACE
QML_NAMED_ELEMENT(TImageSettings)
QML_FOREIGN_NAMESPACE(TImageSettings)
Q_CLASSINFO("QML.Creatable", "false")
Q_CLASSINFO("QML.UncreatableReason", "Cannot create TImageSettings")
} // namespace TImageSettingsInQml
