#pragma once

#include "engine/analysis/ImageStatistics.h"
#include "engine/core/Stage.h"
#include "engine/filters/FilterValues.h"

/// What a filter may know when it prepares its tables. `size` is that of its input; the statistics
/// are those of the picture as it was opened.
struct FilterInput {
    const FilterValues &values;
    const ImageStatistics &statistics;
    QSize size;
    RunLog &log;
};

/// The one place that knows which operation runs which filter.
namespace Filters {

bool supports(const ModelDefinition &definition, QString *why);

/// Null when the settings ask for no change.
std::unique_ptr<Stage> make(const FilterInput &input);

} // namespace Filters
