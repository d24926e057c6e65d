#pragma once

#include "engine/filters/Filters.h"

/// Denoise, Sharpen and RAW by a network.
PreparedStage makeRestoreStage(const FilterInput &input);
