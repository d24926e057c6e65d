#include "cli/OverrideCheck.h"

#include "contracts/FilterNames.h"
#include "model/ParameterBounds.h"

using namespace Qt::StringLiterals;

namespace {

QString joined(const QStringList &names) {
    return names.join(u", "_s);
}

bool isFlag(const QString &value) {
    return QStringList{u"true"_s, u"false"_s, u"1"_s, u"0"_s}.contains(value.toLower());
}

/// Empty when the value can be taken as it is.
QString valueProblem(const QString &value, const QVariantMap &parameter) {
    const QVariant initial = parameter.value(Keys::Default);
    if (initial.typeId() == QMetaType::Bool)
        return isFlag(value) ? QString() : u"is true or false, not \"%1\""_s.arg(value);
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber)
        return u"takes a number, not \"%1\"; %2 is used"_s.arg(value, initial.toString());
    const double taken = ParameterBounds::clamped(number, parameter);
    if (taken == number)
        return {};
    return u"goes from %1 to %2; %3 is taken as %4"_s.arg(parameter.value(Keys::Minimum).toDouble())
        .arg(parameter.value(Keys::Maximum).toDouble())
        .arg(value)
        .arg(taken);
}

QString sizeProblem(const Override &setting, const QString &mode) {
    const auto &[key, value] = setting;
    const QStringList modes = Params::sizeModes();
    if (key == Params::Mode) {
        return modes.contains(value) ? QString()
                                     : u"can't be \"%1\"; there are: %2"_s.arg(value, joined(modes));
    }
    if (value.toDouble() <= 0)
        return u"takes a number above 0, not \"%1\""_s.arg(value);
    return modes.contains(key) && key != mode ? u"has no effect where mode is %1"_s.arg(mode) : QString();
}

} // namespace

Override parseOverride(const QString &text) {
    const QStringList parts = text.split(u'=', Qt::SkipEmptyParts);
    return {parts.value(0), parts.value(1)};
}

QStringList overrideProblems(const QString &category, const QVariantMap &filter, const QVariantMap &models,
                             const QList<Override> &overrides) {
    if (models.isEmpty())
        return {u"%1 has no installed model and does nothing"_s.arg(category)};
    const QString given = filter.value(Keys::Model).toString();
    const QString model = given.isEmpty() ? models.firstKey() : given;
    if (!models.contains(model))
        return {u"%1 has no model \"%2\"; there are: %3"_s.arg(category, model, joined(models.keys()))};

    const QVariantMap parameters =
        models.value(model).toMap().value(Keys::Gui).toMap().value(Keys::Parameters).toMap();
    const QStringList sizes = category == Categories::Enhance ? Params::sizeModes()
                                                                    << Params::Mode << Params::Resolution
                                                                    << Params::ResolutionUnit
                                                              : QStringList();
    const QString mode = filter.value(Keys::Params).toMap().value(Params::Mode, Params::Scale).toString();
    QStringList problems;
    for (const auto &[key, value] : overrides) {
        QString problem;
        if (key == Keys::Model)
            continue;
        if (key == Keys::Enabled)
            problem = isFlag(value) ? QString() : u"is true or false, not \"%1\""_s.arg(value);
        else if (parameters.contains(key))
            problem = valueProblem(value, parameters.value(key).toMap());
        else if (sizes.contains(key))
            problem = sizeProblem({key, value}, mode);
        else
            problem = u"is no setting of the model %1; it has: %2"_s.arg(
                model, joined(parameters.keys() + sizes + QStringList{Keys::Enabled, Keys::Model}));
        if (!problem.isEmpty())
            problems.append(u"%1: \"%2\" %3"_s.arg(category, key, problem));
    }
    return problems;
}
