#pragma once

#include "contracts/Preferences.h"
#include "frontends/PreferenceTable.h"

#include <QBasicTimer>
#include <QColor>
#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSettings>
#include <QtQmlIntegration/qqmlintegration.h>

struct PreferenceInQml {
    Q_GADGET
    QML_FOREIGN(Preference)
    QML_VALUE_TYPE(preference)
};

/// The store. What is set holds at once for every reader in this program; the disk gets it with what
/// else changes within half a second, or at the end.
class PatientSettings : public QSettings {
public:
    using QSettings::QSettings;

protected:
    bool event(QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    QBasicTimer m_wait;
};

/// Every persistent preference as a property under its key. Constructed from what is stored, a default
/// in place of what is missing or not valid; a change is stored by itself. Lives on the main thread.
class MainSettings : public QObject {
    Q_OBJECT
    QML_ELEMENT
#define PROPERTY(Type, key, ...) Q_PROPERTY(Type key MEMBER m_##key NOTIFY key##Changed)
    PREFERENCES(PROPERTY)
#undef PROPERTY
    /// What there is to set: key, default, and what is allowed.
    Q_PROPERTY(QList<Preference> table READ table CONSTANT)

public:
    explicit MainSettings(QObject *parent = nullptr);

    const QList<Preference> &table() const { return preferenceTable(); }
    Q_INVOKABLE Preference about(const QString &key) const { return preference(key); }

    /// From here on the engine's properties follow the preferences that feed them, but for those in
    /// `except`, which the caller binds itself.
    Q_INVOKABLE void feed(QObject *engine, const QStringList &except = {});

    /// Folders for results that are gone since are not offered.
    Q_INVOKABLE void dropVanishedFolders();

Q_SIGNALS:
#define CHANGED(Type, key, ...) void key##Changed();
    PREFERENCES(CHANGED)
#undef CHANGED
    /// Any of them, once it is in the store.
    void stored(const QString &key);

private:
    Q_SLOT void store();
    void read(const Preference &preference);

    PatientSettings m_store;
#define MEMBER(Type, key, initial, ...) Type m_##key = preferenceValue<Type> initial;
    PREFERENCES(MEMBER)
#undef MEMBER
};
