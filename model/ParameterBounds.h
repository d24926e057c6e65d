#pragma once

#include <QStringList>
#include <QVariantMap>

/// Settings that come from outside, a preset or a host, as far as the catalogue of models allows them.
namespace ParameterBounds {

/// The number within the range of a parameter of the catalogue. 0 stands for "off" everywhere and is
/// always taken; without a range every number is.
double clamped(double number, const QVariantMap &parameter);

struct Bounded {
    QVariantMap filter;
    QStringList problems; ///< a sentence for each thing that was changed or left out
};

/// A filter's map, its parameters nested or flat, made fit to be merged into a filter that runs
/// `ownModel`. `models` is the category's part of the catalogue. A model that isn't there becomes the
/// first one, numbers are clamped, and a value of another kind than the parameter's is left out.
/// Parameters that the catalogue doesn't know pass, unless they are numbers without an end.
Bounded bounded(const QVariantMap &filter, const QVariantMap &models, const QString &ownModel = QString());

} // namespace ParameterBounds
