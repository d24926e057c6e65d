#include "model/TCategorySettings.h"

#include "contracts/FilterNames.h"

#include <QJSValue>

using namespace Qt::StringLiterals;

namespace {

template <typename T>
bool store(T &field, const T &value) {
    const bool differs = field != value;
    field = value;
    return differs;
}

// Replacing a whole map counts as a change without looking at the values: the maps that come with
// the same keys are complete sets of a filter's parameters, and the caller has just decided on them.
bool mergeMap(QVariantMap &field, const QVariantMap &given) {
    if (field.isEmpty() || field.keys() == given.keys()) {
        field = given;
        return true;
    }
    bool changed = false;
    for (const auto &[key, value] : given.asKeyValueRange())
        changed |= store(field[key], value);
    return changed;
}

} // namespace

TCategorySettings::TCategorySettings(const QString &filterCategory, const QString &filterModel,
                                     const QVariantMap &filterParams, bool filterEnabled)
    : category(filterCategory)
    , model(filterModel)
    , params(filterParams)
    , enabled(filterEnabled) {
}

QVariantMap TCategorySettings::toMap() const {
    return {{Keys::Category, category},
            {Keys::Enabled, enabled},
            {Keys::Model, model},
            {Keys::Params, params},
            {Keys::SubjectSettings, subjectSettings}};
}

bool TCategorySettings::merge(const QVariantMap &map) {
    bool changed = false;
    for (const auto &[key, value] : map.asKeyValueRange()) {
        if (key == Keys::Category)
            changed |= store(category, value.toString());
        else if (key == Keys::Model)
            changed |= store(model, value.toString());
        else if (key == Keys::Enabled)
            changed |= store(enabled, value.toBool());
        else if (key == Keys::SubjectSettings)
            changed |= mergeMap(subjectSettings, value.toMap());
        else if (key == Keys::Params)
            changed |= mergeMap(params, value.toMap());
        else if (params.value(key) != value) {
            params.insert(key, value);
            changed = true;
        }
    }
    return changed;
}

bool TCategorySettings::setParam(const QString &key, const QVariant &value) {
    const QVariant plain = value.value<QJSValue>().toVariant();
    if (key == Keys::Enabled)
        return store(enabled, value.toBool());
    // A string would convert, too, to a list of its characters.
    if (plain.canConvert<QVariantList>() && plain.typeId() != QMetaType::QString)
        return store(params[key], QVariant(plain.toList()));
    return store(params[key], value);
}

void TCategorySettings::resetSubject(const QString &type) {
    subjectSettings.insert(Keys::Model, type);
    subjectSettings.insert(u"sensitivity"_s, 0.5);
    subjectSettings.insert(u"feathering"_s, 1);
    subjectSettings.insert(Params::Strokes, QVariantList());
    subjectSettings.insert(u"originalSubjectPath"_s, u""_s);
}
