#include "frontends/PreferenceTable.h"

#include "contracts/Preferences.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QSettings>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// What a row of the table may hold: each part changes the preference that the ones before it made.
auto anything() {
    return [](Preference &) {};
}

auto within(double lowest, double highest) {
    return [=](Preference &p) {
        p.lowest = lowest;
        p.highest = highest;
    };
}

QVariant allowedValue(const char *text) {
    return QString::fromLatin1(text);
}
QVariant allowedValue(int number) {
    return number;
}

template <typename... Values>
auto oneOf(Values... values) {
    return [all = QVariantList{allowedValue(values)...}](Preference &p) { p.values = all; };
}

template <typename... Texts>
QStringList texts(Texts... all) {
    return preferenceValue<QStringList>(all...);
}

auto underKey(const char *key) {
    return [=](Preference &p) { p.consoleKey = QString::fromLatin1(key); };
}

auto byDefault(const QVariant &initial, const QVariant &shown) {
    return [=](Preference &p) {
        p.consoleInitial = initial;
        p.consoleShown = shown;
    };
}

template <typename... Parts>
Preference row(const char *key, const QVariant &initial, const char *engineProperty, Parts... parts) {
    Preference p;
    p.key = p.consoleKey = QString::fromLatin1(key);
    p.initial = p.consoleInitial = p.consoleShown = initial;
    p.engineProperty = QString::fromLatin1(engineProperty);
    (parts(p), ...);
    return p;
}

bool isNumber(const QVariant &value) {
    return value.typeId() == QMetaType::Int || value.typeId() == QMetaType::Double;
}

bool isFolderChoice(const QVariant &entry) {
    const QVariantMap map = entry.toMap();
    return map.value(u"text"_s).typeId() == QMetaType::QString &&
           map.value(u"value"_s).typeId() == QMetaType::QString;
}

/// What converts to the type without being one of its values.
bool isSound(const QVariant &value, const QVariant &stored) {
    const bool wasText = stored.typeId() == QMetaType::QString;
    switch (value.typeId()) {
    case QMetaType::Bool:
        return !wasText || QStringList{u"true"_s, u"false"_s, u"1"_s, u"0"_s}.contains(stored.toString());
    case QMetaType::QStringList:
        return !wasText || !stored.toString().isEmpty();
    case QMetaType::Double:
        return std::isfinite(value.toDouble());
    case QMetaType::QColor:
        return value.value<QColor>().isValid();
    case QMetaType::QDateTime:
        return value.toDateTime().isValid();
    case QMetaType::QVariantList: {
        const QVariantList list = value.toList();
        return !list.isEmpty() && std::ranges::all_of(list, isFolderChoice);
    }
    default:
        return true;
    }
}

} // namespace

const QList<Preference> &preferenceTable() {
#define ENGINE_ROW(Type, key, initial, allowed, EngineType, property, setter, ...)                           \
    row(#key, QVariant::fromValue(preferenceValue<Type> initial), #property,                                 \
        allowed __VA_OPT__(, ) __VA_ARGS__),
#define ROW(Type, key, initial, allowed)                                                                     \
    row(#key, QVariant::fromValue(preferenceValue<Type> initial), "", allowed),
    static const QList<Preference> table = {ENGINE_PREFERENCES(ENGINE_ROW) WINDOW_PREFERENCES(ROW)};
#undef ROW
#undef ENGINE_ROW
    return table;
}

const Preference &preference(QStringView key) {
    const auto found = std::ranges::find(preferenceTable(), key, &Preference::key);
    Q_ASSERT(found != preferenceTable().end());
    return *found;
}

QVariant validPreference(const Preference &preference, const QVariant &stored) {
    const QMetaType type = preference.initial.metaType();
    QVariant value = stored;
    if (!stored.isValid())
        return type == QMetaType::fromType<QStringList>() ? QVariant(QStringList()) : QVariant();
    if (value.metaType() != type && !value.convert(type))
        return {};
    const bool fits =
        !isNumber(value) || (value.toDouble() >= preference.lowest && value.toDouble() <= preference.highest);
    const bool known = preference.values.isEmpty() || preference.values.contains(value);
    return fits && known && isSound(value, stored) ? value : QVariant();
}

QVariant storedPreference(const QSettings &settings, QStringView key) {
    const Preference &wanted = preference(key);
    const QVariant value =
        settings.contains(wanted.key) ? validPreference(wanted, settings.value(wanted.key)) : QVariant();
    return value.isValid() ? value : wanted.initial;
}
