#include "model/SettingsMatching.h"

#include "contracts/FilterNames.h"
#include "model/EnhanceLimits.h"
#include "model/TCategorySettings.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

// Kept as a floating value: a parameter from a file may be too large for an integer.
double hundredths(const QVariant &value) {
    return std::trunc(value.toFloat() * 100.0F);
}

bool matchParams(const QString &category, const QVariantMap &own, QVariantMap given) {
    QVariantMap size;
    for (const QString &key : {Params::Mode, Params::Height, Params::Width, Params::Scale}) {
        if (given.contains(key))
            size.insert(key, given.take(key));
    }
    if (category == Categories::Enhance && !sameEnhanceSize(own, size))
        return false;
    for (const auto &[key, value] : given.asKeyValueRange()) {
        if (key == Params::Strokes || key == Params::Mask || key == Params::Locked)
            continue;
        if (!fuzzyEquals(own.value(key), value))
            return false;
    }
    return true;
}

} // namespace

bool fuzzyEquals(const QVariant &first, const QVariant &second) {
    if (first.typeId() == QMetaType::Double)
        return std::abs(hundredths(first) - hundredths(second)) <= 1.0;
    return first == second;
}

bool sameEnhanceSize(const QVariantMap &own, const QVariantMap &given) {
    const QVariant mode = own.value(Params::Mode);
    if (mode != given.value(Params::Mode))
        return false;
    const double ownSize = own.value(mode.toString()).toDouble();
    const double givenSize = given.value(mode.toString()).toDouble();
    const auto atMost = [&given](const QString &key) {
        return given.value(key).toDouble() >= EnhanceLimits::PixelMax;
    };
    if (ownSize > givenSize && (atMost(Params::Height) || atMost(Params::Width)))
        return true;
    if (givenSize > ownSize && given.value(Params::Scale).toDouble() <= EnhanceLimits::ScaleMin)
        return true;
    return fuzzyEquals(ownSize, givenSize);
}

bool TCategorySettings::matches(const QVariantMap &map) const {
    // Key order brings "category" ahead of "enabled", and both ahead of "model" and "params".
    for (const auto &[key, value] : map.asKeyValueRange()) {
        if (key == Keys::Category) {
            if (!category.isEmpty() && category != value.toString())
                return false;
        } else if (key == Keys::Enabled) {
            if (!enabled && !value.toBool())
                return true;
            if (enabled != value.toBool())
                return false;
        } else if (key == Keys::Model) {
            if (!model.isEmpty() && model != value.toString())
                return false;
        } else if (key == Keys::Params) {
            if (!matchParams(category, params, value.toMap()))
                return false;
        }
    }
    return true;
}
