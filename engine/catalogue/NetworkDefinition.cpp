#include "engine/catalogue/NetworkDefinition.h"

#include <QJsonObject>

#include <cmath>

namespace {

constexpr qsizetype MaxNetworks = 16;
constexpr qsizetype MaxConditions = 16;
constexpr qsizetype MaxName = 200;
constexpr int MaxHalo = 512;
constexpr int LeastTile = 32;
constexpr int MaxTile = 4096;
constexpr double MaxWeight = 1000;

/// A whole number of the object, `fallback` where there is none, -1 where it is out of range.
int whole(const QJsonObject &object, const QString &name, int fallback, int least, int most) {
    const double value = object.value(name).toDouble(fallback);
    return value >= least && value <= most && value == std::floor(value) ? int(value) : -1;
}

bool readCondition(const QJsonValue &value, NetworkDefinition::Condition &condition) {
    const QJsonObject weights = value.toObject();
    for (auto it = weights.begin(); it != weights.end(); ++it) {
        const double weight = it->toDouble(MaxWeight + 1);
        if (!(std::abs(weight) <= MaxWeight))
            return false;
        condition.insert(it.key(), weight);
    }
    return value.isObject();
}

/// What is wrong with the entry; empty when it is in `out`.
QString readNetwork(const QJsonObject &object, NetworkDefinition &out) {
    out.file = object.value(QStringLiteral("file")).toString();
    if (out.file.isEmpty() || out.file.size() > MaxName)
        return QStringLiteral("a network names no file");
    const auto wrong = [&](const char *what) {
        return QStringLiteral("the %1 of %2 is not valid").arg(QLatin1String(what), out.file);
    };
    out.scale = whole(object, QStringLiteral("scale"), 1, 1, 4);
    if (out.scale != 1 && out.scale != 2 && out.scale != 4)
        return wrong("scale");
    out.halo = whole(object, QStringLiteral("halo"), -1, 0, MaxHalo);
    if (out.halo < 0)
        return wrong("halo");
    out.tile = whole(object, QStringLiteral("tile"), out.tile, LeastTile, MaxTile);
    if (out.tile < 0)
        return wrong("tile");
    const QJsonObject when = object.value(QStringLiteral("when")).toObject();
    for (auto it = when.begin(); it != when.end(); ++it)
        out.when.insert(it.key(), it->toBool());
    const QJsonArray conditions = object.value(QStringLiteral("conditions")).toArray();
    if (conditions.isEmpty() || conditions.size() > MaxConditions)
        return wrong("list of conditions");
    for (const QJsonValue &value : conditions) {
        NetworkDefinition::Condition condition;
        if (!readCondition(value, condition))
            return wrong("list of conditions");
        out.conditions.append(condition);
    }
    return {};
}

} // namespace

QList<NetworkDefinition> parseNetworks(const QJsonArray &array, QString *error) {
    if (array.isEmpty() || array.size() > MaxNetworks) {
        *error = QStringLiteral("it names no networks, or more than %1").arg(MaxNetworks);
        return {};
    }
    QList<NetworkDefinition> networks;
    for (const QJsonValue &value : array) {
        NetworkDefinition network;
        *error = readNetwork(value.toObject(), network);
        if (!error->isEmpty())
            return {};
        networks.append(network);
    }
    return networks;
}
