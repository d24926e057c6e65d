#include "model/ParameterBounds.h"

#include "contracts/FilterNames.h"
#include "model/EnhanceLimits.h"

#include <QSet>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

bool isNumber(const QVariant &value) {
    static const QSet<int> types = {QMetaType::Int,       QMetaType::UInt,  QMetaType::LongLong,
                                    QMetaType::ULongLong, QMetaType::Float, QMetaType::Double};
    return types.contains(value.typeId());
}

QVariantMap parametersOf(const QVariantMap &models, const QString &model) {
    return models.value(model).toMap().value(Keys::Gui).toMap().value(Keys::Parameters).toMap();
}

// A filter remembers the parameters of the models that it doesn't run, so that those count as well.
QVariantMap parameterOf(const QVariantMap &models, const QString &model, const QString &key) {
    QVariantMap found = parametersOf(models, model).value(key).toMap();
    for (auto other = models.keyBegin(); other != models.keyEnd() && found.isEmpty(); ++other)
        found = parametersOf(models, *other).value(key).toMap();
    return found;
}

/// The size of an upscale has no entry in the catalogue.
QVariantMap sizeParameter(const QString &key) {
    if (key == Params::Scale)
        return {{Keys::Default, 1.0},
                {Keys::Minimum, EnhanceLimits::ScaleMin},
                {Keys::Maximum, EnhanceLimits::PixelMax}};
    if (key == Params::Width || key == Params::Height)
        return {{Keys::Default, 1}, {Keys::Minimum, 1}, {Keys::Maximum, EnhanceLimits::PixelMax}};
    return {};
}

class Check {
public:
    Check(const QString &category, const QVariantMap &models, const QString &model)
        : m_category(category)
        , m_models(models)
        , m_model(model) {}

    /// Those of the entries that may pass, as they may pass.
    QVariantMap pass(const QVariantMap &params) {
        QVariantMap passed;
        for (const auto &[key, value] : params.asKeyValueRange()) {
            const QVariant taken = pass(key, value);
            if (taken.isValid())
                passed.insert(key, taken);
        }
        return passed;
    }
    void say(const QString &problem) { m_problems.append(m_category + u": "_s + problem); }
    QStringList problems() const { return m_problems; }

private:
    QVariant pass(const QString &key, const QVariant &value) {
        const bool upscales = m_category == Categories::Enhance;
        if (upscales && key == Params::Mode && !Params::sizeModes().contains(value.toString()))
            return leaveOut(key, value);
        const QVariantMap size = upscales ? sizeParameter(key) : QVariantMap();
        const QVariantMap parameter = size.isEmpty() ? parameterOf(m_models, m_model, key) : size;
        const QVariant initial = parameter.value(Keys::Default);
        if (isNumber(initial) && !isNumber(value))
            return leaveOut(key, value);
        if (initial.typeId() == QMetaType::Bool && value.typeId() != QMetaType::Bool)
            return leaveOut(key, value);
        return isNumber(value) ? passNumber(key, value, parameter, !size.isEmpty()) : value;
    }

    QVariant passNumber(const QString &key, const QVariant &value, const QVariantMap &parameter,
                        bool isSize) {
        const double number = value.toDouble();
        if (!std::isfinite(number))
            return leaveOut(key, value);
        double taken = ParameterBounds::clamped(number, parameter);
        if (isSize) // which can't be switched off
            taken = std::max(taken, parameter.value(Keys::Minimum).toDouble());
        if (taken == number)
            return value;
        say(u"\"%1\" can't be %2; %3 is taken"_s.arg(key).arg(number).arg(taken));
        return taken;
    }

    QVariant leaveOut(const QString &key, const QVariant &value) {
        say(u"\"%1\" can't be \"%2\" and is left out"_s.arg(key, value.toString()));
        return {};
    }

    QString m_category;
    QVariantMap m_models;
    QString m_model;
    QStringList m_problems;
};

} // namespace

double ParameterBounds::clamped(double number, const QVariantMap &parameter) {
    if (!parameter.contains(Keys::Minimum) || !parameter.contains(Keys::Maximum))
        return number;
    const double least = std::min(parameter.value(Keys::Minimum).toDouble(), 0.0);
    const double most = std::max(parameter.value(Keys::Maximum).toDouble(), 0.0);
    return std::clamp(number, least, most);
}

ParameterBounds::Bounded ParameterBounds::bounded(const QVariantMap &filter, const QVariantMap &models,
                                                  const QString &ownModel) {
    const QString given = filter.value(Keys::Model).toString();
    const QString wanted = given.isEmpty() ? ownModel : given;
    const QString model = models.contains(wanted) || models.isEmpty() ? wanted : models.firstKey();
    Check check(filter.value(Keys::Category).toString(), models, model);
    if (model != wanted && !given.isEmpty())
        check.say(u"there is no model \"%1\"; \"%2\" is taken"_s.arg(given, model));

    QVariantMap fixed;
    QVariantMap flat = filter;
    for (const QString &key :
         {Keys::Category, Keys::Enabled, Keys::SubjectSettings, Keys::Params, Keys::Model}) {
        if (flat.contains(key))
            fixed.insert(key, flat.take(key));
    }
    if (given.isEmpty())
        fixed.remove(Keys::Model);
    else
        fixed.insert(Keys::Model, model);
    if (fixed.contains(Keys::Params))
        fixed.insert(Keys::Params, check.pass(fixed.value(Keys::Params).toMap()));
    fixed.insert(check.pass(flat));
    return {fixed, check.problems()};
}
