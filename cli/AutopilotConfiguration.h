#pragma once

#include <QList>
#include <QString>
#include <QVariant>

class QSettings;
class TControls;
class TEngineController;
struct Preference;

/// One of the preferences that steer Autopilot in a batch run.
struct AutopilotSetting {
    const Preference &preference;
    QString label; ///< as the summary shows it
};

/// In the order of reading, which is the summary's order as well.
const QList<AutopilotSetting> &autopilotSettings();

/// What the console finds stored, or `fallback`.
QVariant readSetting(const QSettings &settings, const Preference &preference, const QVariant &fallback);

QString defaultSubjectType(const QSettings &settings);

/// Hands the user's settings to the engine, and the type of subject to the model.
void configureAutopilot(const QSettings &settings, TEngineController &engine, TControls &controls);
