#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

#include <limits>

class QSettings;

/// One persistent preference, as the table in contracts/Preferences.h has it.
struct Preference {
    Q_GADGET
    Q_PROPERTY(QString key MEMBER key CONSTANT)
    Q_PROPERTY(QVariant initial MEMBER initial CONSTANT)
    Q_PROPERTY(QVariantList values MEMBER values CONSTANT)
    Q_PROPERTY(double lowest MEMBER lowest CONSTANT)
    Q_PROPERTY(double highest MEMBER highest CONSTANT)
    Q_PROPERTY(QString engineProperty MEMBER engineProperty CONSTANT)

public:
    QString key;
    QVariant initial;    ///< the default, in the preference's type
    QVariantList values; ///< the only ones allowed; empty: as its type and the range say
    double lowest = -std::numeric_limits<double>::infinity();
    double highest = std::numeric_limits<double>::infinity();
    QString engineProperty; ///< that follows it; empty: none

    QString consoleKey;      ///< where the console looks for it
    QVariant consoleInitial; ///< the console's default
    QVariant consoleShown;   ///< what its summary shows when nothing is stored
};

/// Every preference, those that steer the engine first.
const QList<Preference> &preferenceTable();

/// The one of this key, which must exist.
const Preference &preference(QStringView key);

/// What a stored value stands for: the value in the preference's type, or an invalid variant when it is
/// none that the preference allows. An invalid one stands for an empty list where a list is wanted: the
/// store can't tell them apart.
QVariant validPreference(const Preference &preference, const QVariant &stored);

/// The stored value when there is a valid one, else the default. For readers of the store itself.
QVariant storedPreference(const QSettings &settings, QStringView key);
