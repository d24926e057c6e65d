#pragma once

#include "model/TImageSettings.h"

/// How the filters of one image are adjusted before they are laid on another.
/// 0 and 1: the target's Autopilot settings that stand in for denoising, because exactly one of
/// the two images runs a Linear RAW filter on auto (0 the source, 1 the target).
/// 2: the faces selected on the target, which belong to that image.
using ApplyOverrides = QMap<int, QVariant>;

ApplyOverrides applyOverrides(const TImageSettings &source, const TImageSettings &target);

/// The source's filter as the target is to have it.
QVariantMap adjustedFilter(const TImageSettings &source, const QString &filterName,
                           const ApplyOverrides &overrides);
