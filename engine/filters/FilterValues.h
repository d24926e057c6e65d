#pragma once

#include "engine/catalogue/ModelDefinition.h"
#include "engine/filters/RunLog.h"

#include <QVariantMap>

/// The settings of one filter, read by the role that a parameter plays. Numbers may come as text;
/// what lies outside the range is clamped, what is no number falls back to the model's default,
/// both with a line in the log. Every number may also be 0, which stands for "off".
class FilterValues {
public:
    FilterValues(const QString &filter, const ModelDefinition &definition, const QVariantMap &params,
                 RunLog &log);

    const ModelDefinition &definition() const { return m_definition; }
    /// 0 when the model has no such parameter.
    double number(const QString &role) const;
    bool flag(const QString &role) const { return number(role) != 0; }
    /// A size setting that is no parameter of the model; nothing when absent or not a positive number.
    std::optional<double> size(const QString &name) const;
    QString text(const QString &name) const { return m_params.value(name).toString(); }

    /// Identifies model and values.
    QByteArray key() const;

private:
    double read(const ParameterDefinition &parameter) const;

    QString m_filter;
    const ModelDefinition &m_definition;
    QVariantMap m_params;
    RunLog &m_log;
    QMap<QString, double> m_values; ///< role to value
};
