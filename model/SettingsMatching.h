#pragma once

#include <QVariantMap>

/// Whether two parameter values are one setting. When the first is held as a double, both count in
/// whole hundredths and may be one hundredth apart; any other type is compared exactly.
bool fuzzyEquals(const QVariant &first, const QVariant &second);

/// Whether the size asked for by an upscale's parameters is that of the given "mode", "scale",
/// "width" and "height". A difference that the upscale's limits explain is forgiven.
bool sameEnhanceSize(const QVariantMap &own, const QVariantMap &given);
