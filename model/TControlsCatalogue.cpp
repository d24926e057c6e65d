#include "model/TControls.h"

using namespace Qt::StringLiterals;

namespace {

QVariantMap defaultsOf(const QVariantMap &modelEntry) {
    const QVariantMap parameters = modelEntry.value(Keys::Gui).toMap().value(Keys::Parameters).toMap();
    QVariantMap defaults;
    for (const auto &[name, entry] : parameters.asKeyValueRange())
        defaults.insert(name, entry.toMap().value(Keys::Default, 0));
    return defaults;
}

QVariantList namesOf(const QVariantMap &models) {
    QVariantList names;
    for (auto model = models.keyBegin(); model != models.keyEnd(); ++model)
        names.append(*model);
    return names;
}

QVariantMap defaultsByModel(const QVariantMap &models) {
    QVariantMap defaults;
    for (const auto &[model, entry] : models.asKeyValueRange())
        defaults.insert(model, defaultsOf(entry.toMap()));
    return defaults;
}

} // namespace

void TControls::setModelParamInfo(const QVariantMap &modelParamInfo) {
    m_modelParamInfo = modelParamInfo;
    Q_EMIT modelParamInfoChanged();
    m_modelNames.clear();
    for (const auto &[category, models] : modelParamInfo.asKeyValueRange())
        m_modelNames.insert(category, namesOf(models.toMap()));
    Q_EMIT modelNamesChanged();
    m_defaultParams.clear();
    for (const auto &[category, models] : modelParamInfo.asKeyValueRange()) {
        // Autopilot's own parameters, which no filter runs.
        if (category != "Auto Param"_L1)
            m_defaultParams.insert(category, defaultsByModel(models.toMap()));
    }
}
