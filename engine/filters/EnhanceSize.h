#pragma once

#include "engine/filters/FilterValues.h"

#include <QSize>

/// Output pixels per input pixel that the size settings `mode`, `scale`, `width` and `height` ask
/// for: 0.2 to 6, and at most 32,000 pixels on the longest side (but never below 0.2).
///
/// In the modes "width" and "height" the fixed side counts, against the whole picture. A window
/// that shows a crop keeps `scale` in step with the cropped side, which the engine doesn't know:
/// there `scale` decides, as far as some crop of the picture explains it.
double enhanceScale(const FilterValues &values, const QSize &input, RunLog &log);
