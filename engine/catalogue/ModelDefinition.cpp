#include "engine/catalogue/ModelDefinition.h"

#include "contracts/FilterNames.h"
#include "engine/catalogue/Roles.h"

#include <QJsonDocument>

#include <array>
#include <cmath>

namespace {

constexpr qsizetype MaxBytes = 256 * 1024;
constexpr qsizetype MaxParameters = 64;
constexpr qsizetype MaxName = 100;

bool isName(const QString &s) {
    return !s.trimmed().isEmpty() && s.size() <= MaxName;
}

/// Empty when the parameter is in `out`, otherwise what is wrong with it.
QString readParameter(const QString &name, const QJsonValue &value, ParameterDefinition &out) {
    if (!isName(name) || !value.isObject())
        return QStringLiteral("parameter \"%1\" is not an object").arg(name.left(MaxName));
    const QJsonObject object = value.toObject();
    const QJsonValue initial = object.value(Keys::Default);
    out.name = name;
    out.role = object.value(QStringLiteral("role")).toString();
    out.isFlag = initial.isBool();
    if (out.isFlag) {
        out.initial = initial.toBool();
        return {};
    }
    out.initial = initial.toDouble(0);
    out.minimum = object.value(Keys::Minimum).toDouble(0);
    out.maximum = object.value(Keys::Maximum).toDouble(1);
    if (!std::isfinite(out.initial) || !std::isfinite(out.minimum) || !std::isfinite(out.maximum) ||
        out.minimum > out.maximum)
        return QStringLiteral("parameter \"%1\" has no valid range").arg(name);
    return {};
}

} // namespace

const ParameterDefinition *ModelDefinition::byRole(const QString &role) const {
    for (const ParameterDefinition &parameter : parameters)
        if (parameter.role == role)
            return &parameter;
    return nullptr;
}

double ModelDefinition::constant(const QString &name, double fallback) const {
    return constants.value(name).toDouble(fallback);
}

double ModelDefinition::reach(Fault fault, const QStringList &flags) const {
    constexpr std::array<double, 3> FullCondition = {75, 30, 4};
    for (const NetworkDefinition &network : networks) {
        bool fits = network.scale == 1;
        for (auto flag = network.when.begin(); flag != network.when.end(); ++flag)
            fits = fits && flags.contains(flag.key()) == flag.value();
        if (fits)
            return network.conditions.value(fault).value(Roles::Strength) *
                   FullCondition[std::size_t(fault)] / constant(QStringLiteral("colourNoise"), 1);
    }
    return 0;
}

std::optional<ModelDefinition> parseModelDefinition(const QByteArray &json, QString *error) {
    const auto fail = [error](const QString &message) -> std::optional<ModelDefinition> {
        *error = message;
        return std::nullopt;
    };
    if (json.size() > MaxBytes)
        return fail(QStringLiteral("it is larger than %1 KiB").arg(MaxBytes / 1024));
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (!document.isObject())
        return fail(
            parseError.error == QJsonParseError::NoError
                ? QStringLiteral("it does not hold an object")
                : QStringLiteral("at byte %1: %2").arg(parseError.offset).arg(parseError.errorString()));
    const QJsonObject object = document.object();
    ModelDefinition definition;
    definition.category = object.value(Keys::Category).toString();
    definition.model = object.value(Keys::Model).toString();
    definition.kind = object.value(QStringLiteral("kind")).toString();
    definition.operation = object.value(QStringLiteral("operation")).toString();
    definition.constants = object.value(QStringLiteral("constants")).toObject();
    if (!isName(definition.category) || !isName(definition.model) || !isName(definition.operation))
        return fail(QStringLiteral("it names no category, model or operation"));
    const QJsonObject parameters = object.value(Keys::Parameters).toObject();
    if (parameters.size() > MaxParameters)
        return fail(QStringLiteral("it has more than %1 parameters").arg(MaxParameters));
    for (auto it = parameters.begin(); it != parameters.end(); ++it) {
        ParameterDefinition parameter;
        const QString problem = readParameter(it.key(), it.value(), parameter);
        if (!problem.isEmpty())
            return fail(problem);
        definition.parameters.append(parameter);
    }
    if (definition.kind == QStringLiteral("network")) {
        definition.networks = parseNetworks(object.value(QStringLiteral("networks")).toArray(), error);
        if (definition.networks.isEmpty())
            return std::nullopt;
    }
    return definition;
}
