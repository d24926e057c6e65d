#pragma once

#include <QList>
#include <QString>
#include <QVariant>

class QSettings;
class TControls;
class TEngineController;

/// One of the user's settings that steer Autopilot. The type of `fallback` (text, whole number,
/// float or list of texts) is the type that the stored value is read as.
struct AutopilotSetting {
    QString key;
    QVariant fallback;
    void (*apply)(TEngineController &, const QVariant &);
    QString label;               ///< its words in the summary
    QVariant shownFallback = {}; ///< what the summary shows when nothing is stored; invalid: `fallback`
};

/// In the order of reading, which is the summary's order as well.
const QList<AutopilotSetting> &autopilotSettings();

/// The stored value, or the fallback, in the fallback's type.
QVariant readSetting(const QSettings &settings, const QString &key, const QVariant &fallback);

QString defaultSubjectType(const QSettings &settings);

/// Hands the user's settings to the engine, and the type of subject to the model.
void configureAutopilot(const QSettings &settings, TEngineController &engine, TControls &controls);
