#pragma once

#include "contracts/Autopilot.h"

#include <QColor>
#include <QObject>

/// What the user and the program have decided about runs and analysis; read when a request is
/// made, so a later change never reaches work under way. Main thread only. The user's part comes from
/// the table of preferences, with the defaults of a first start.
class EngineSettings : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isCli READ isCli WRITE setIsCli NOTIFY isCliChanged)
    Q_PROPERTY(bool exporting READ exporting WRITE setExporting NOTIFY exportingChanged)
    Q_PROPERTY(bool exportIsDng READ exportIsDng WRITE setExportIsDng NOTIFY exportIsDngChanged)
    Q_PROPERTY(bool resizingSupported READ resizingSupported WRITE setResizingSupported NOTIFY
                   resizingSupportedChanged)
#define PROPERTY(Type, key, initial, allowed, EngineType, property, setter, ...)                             \
    Q_PROPERTY(EngineType property READ property WRITE setter NOTIFY property##Changed)
    ENGINE_PREFERENCES(PROPERTY)
#undef PROPERTY

public:
    explicit EngineSettings(QObject *parent = nullptr)
        : QObject(parent) {}

    /// What the analysis is given.
    const Autopilot::Preferences &preferences() const { return m_preferences; }

    bool isCli() const { return m_isCli; }
    void setIsCli(bool value) { change(m_isCli, value, &EngineSettings::isCliChanged); }
    bool exporting() const { return m_exporting; }
    void setExporting(bool value) { change(m_exporting, value, &EngineSettings::exportingChanged); }
    bool exportIsDng() const { return m_exportIsDng; }
    void setExportIsDng(bool value) { change(m_exportIsDng, value, &EngineSettings::exportIsDngChanged); }
    bool resizingSupported() const { return m_preferences.resizingSupported; }
    void setResizingSupported(bool value) {
        change(m_preferences.resizingSupported, value, &EngineSettings::resizingSupportedChanged);
    }

#define ACCESS(place, EngineType, property, setter)                                                          \
    EngineType property() const { return place.property; }                                                   \
    void setter(const EngineType &value) {                                                                   \
        change(place.property, value, &EngineSettings::property##Changed);                                   \
    }
#define AUTOPILOT_ACCESS(Type, key, initial, allowed, EngineType, property, setter, ...)                     \
    ACCESS(m_preferences, EngineType, property, setter)
#define RUN_ACCESS(Type, key, initial, allowed, EngineType, property, setter, ...)                           \
    ACCESS(m_run, EngineType, property, setter)
    AUTOPILOT_PREFERENCES(AUTOPILOT_ACCESS)
    RUN_PREFERENCES(RUN_ACCESS)
#undef RUN_ACCESS
#undef AUTOPILOT_ACCESS
#undef ACCESS

Q_SIGNALS:
    void isCliChanged();
    void exportingChanged();
    void exportIsDngChanged();
    void resizingSupportedChanged();
#define CHANGED(Type, key, initial, allowed, EngineType, property, ...) void property##Changed();
    ENGINE_PREFERENCES(CHANGED)
#undef CHANGED

private:
    template <typename T>
    void change(T &member, const T &value, void (EngineSettings::*changed)()) {
        if (member == value)
            return;
        member = value;
        Q_EMIT(this->*changed)();
    }

    struct Run {
#define FIELD(Type, key, initial, allowed, EngineType, property, ...)                                        \
    EngineType property = EngineType(preferenceValue<Type> initial);
        RUN_PREFERENCES(FIELD)
#undef FIELD
    };

    Autopilot::Preferences m_preferences;
    Run m_run; ///< deviceId: -2 automatic, -1 processor, 0 upward a graphics card
    bool m_isCli = false;
    bool m_exporting = false;
    bool m_exportIsDng = false;
};
