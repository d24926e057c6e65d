#include "model/ApplyOverrides.h"

#include "contracts/FilterNames.h"

using namespace Qt::StringLiterals;

namespace {

enum OverrideKey { SourceIsLinear = 0, TargetIsLinear = 1, TargetFaces = 2 };

bool isOnAuto(const TCategorySettings &raw) {
    return raw.params.value(Params::Auto).toBool();
}

bool isLinearOnAuto(const TCategorySettings &raw) {
    return raw.model == Models::LinearRaw && isOnAuto(raw);
}

} // namespace

ApplyOverrides applyOverrides(const TImageSettings &source, const TImageSettings &target) {
    ApplyOverrides overrides;
    const TCategorySettings sourceRaw = source.filter(Categories::Raw);
    const TCategorySettings targetRaw = target.filter(Categories::Raw);
    const bool sourceLinear = isLinearOnAuto(sourceRaw);
    const bool targetLinear = isLinearOnAuto(targetRaw);
    if (target.isAutopilotCalculated() && sourceLinear != targetLinear) {
        const bool takeRaw = targetLinear || isOnAuto(targetRaw);
        QVariantMap entry =
            target.autoPilotSettings.value(takeRaw ? Categories::Raw : Categories::Denoise).toMap();
        entry.insert(Keys::Enabled, sourceRaw.enabled || source.filter(Categories::Denoise).enabled);
        overrides.insert(sourceLinear ? SourceIsLinear : TargetIsLinear, entry);
    }
    const QVariant faces = target.filter(Categories::FaceRecovery).params.value(Params::SelectedFaces);
    if (faces.isValid())
        overrides.insert(TargetFaces, faces);
    return overrides;
}

QVariantMap adjustedFilter(const TImageSettings &source, const QString &filterName,
                           const ApplyOverrides &overrides) {
    QVariantMap map = source.filter(filterName).toMap();
    const bool denoises = filterName == Categories::Denoise || filterName == Categories::Raw;
    if (denoises && source.isAutopilotCalculated()) {
        for (const int key : {SourceIsLinear, TargetIsLinear}) {
            if (!overrides.contains(key))
                continue;
            map = overrides.value(key).toMap();
            if (map.value(Keys::Category).toString() != filterName)
                map.insert(Keys::Enabled, false);
        }
    }
    if (filterName == Categories::FaceRecovery && overrides.contains(TargetFaces)) {
        QVariantMap params = map.value(Keys::Params).toMap();
        params.insert(Params::SelectedFaces, overrides.value(TargetFaces));
        map.insert(Keys::Params, params);
    }
    return map;
}
