#pragma once

#include "engine/filters/Filters.h"

/// Denoise, Sharpen and RAW by a network.
Made makeRestoreStage(const FilterInput &input);
