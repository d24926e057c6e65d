#pragma once

#include "engine/filters/Filters.h"

/// Enhance by networks that enlarge in steps.
PreparedStage makeEnhanceStage(const FilterInput &input);
