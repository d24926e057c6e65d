#pragma once

#include "engine/analysis/ImageStatistics.h"
#include "engine/core/Stage.h"
#include "engine/filters/FilterValues.h"
#include "engine/inference/NetworkStore.h"

/// What a filter may know when it prepares its tables. `size` is that of its input; the statistics
/// are those of the picture as it was opened.
struct FilterInput {
    const FilterValues &values;
    const ImageStatistics &statistics;
    QSize size;
    NetworkStore &networks;
    RunLog &log;
};

/// A stage, an error text, or neither when the settings ask for no change.
struct PreparedStage {
    std::unique_ptr<Stage> stage{};
    QString error{};
};

/// The one place that knows which operation runs which filter.
namespace Filters {

/// Whether the engine can run a model: its operation, and its weight files, which are loaded.
bool supports(const ModelDefinition &definition, NetworkStore &networks, QString *why);

PreparedStage make(const FilterInput &input);

} // namespace Filters
