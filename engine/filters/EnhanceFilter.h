#pragma once

#include "engine/filters/Filters.h"

/// Enhance by networks that enlarge in steps.
Made makeEnhanceStage(const FilterInput &input);
