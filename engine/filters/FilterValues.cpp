#include "engine/filters/FilterValues.h"

#include <cmath>

namespace {

std::optional<double> toNumber(const QVariant &value) {
    bool ok = false;
    const double number =
        value.typeId() == QMetaType::QString ? value.toString().trimmed().toDouble(&ok) : value.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    return number;
}

std::optional<bool> toFlag(const QVariant &value) {
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    const QString text = value.toString().trimmed().toLower();
    if (text == QStringLiteral("true"))
        return true;
    if (text == QStringLiteral("false"))
        return false;
    const auto number = toNumber(value);
    return number ? std::optional(*number != 0) : std::nullopt;
}

} // namespace

FilterValues::FilterValues(const QString &filter, const ModelDefinition &definition,
                           const QVariantMap &params, RunLog &log)
    : m_filter(filter)
    , m_definition(definition)
    , m_params(params)
    , m_log(log) {
    for (const ParameterDefinition &parameter : definition.parameters)
        m_values.insert(parameter.role, read(parameter));
}

double FilterValues::read(const ParameterDefinition &parameter) const {
    const QVariant value = m_params.value(parameter.name);
    if (!value.isValid())
        return parameter.initial;
    const auto number = parameter.isFlag ? [&] {
        const auto flag = toFlag(value);
        return flag ? std::optional(*flag ? 1.0 : 0.0) : std::nullopt;
    }()
                                         : toNumber(value);
    if (!number) {
        m_log.note(QStringLiteral("%1: the value of \"%2\" is not a number, %3 is used")
                       .arg(m_filter, parameter.name)
                       .arg(parameter.initial));
        return parameter.initial;
    }
    const double clamped =
        std::clamp(*number, std::min(parameter.minimum, 0.0), std::max(parameter.maximum, 0.0));
    if (clamped != *number)
        m_log.note(QStringLiteral("%1: the value %3 of \"%2\" is out of range, %4 is used")
                       .arg(m_filter, parameter.name)
                       .arg(*number)
                       .arg(clamped));
    return clamped;
}

double FilterValues::number(const QString &role) const {
    return m_values.value(role, 0);
}

std::optional<double> FilterValues::size(const QString &name) const {
    const QVariant value = m_params.value(name);
    if (!value.isValid())
        return std::nullopt;
    const auto number = toNumber(value);
    if (!number || *number <= 0) {
        m_log.note(
            QStringLiteral("%1: the value of \"%2\" is not a size and is ignored").arg(m_filter, name));
        return std::nullopt;
    }
    return number;
}

QByteArray FilterValues::key() const {
    QByteArray key = (m_definition.category + QLatin1Char('/') + m_definition.model).toUtf8();
    for (auto it = m_values.begin(); it != m_values.end(); ++it)
        key += ';' + it.key().toUtf8() + '=' + QByteArray::number(it.value(), 'g', 17);
    return key;
}
