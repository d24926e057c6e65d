#pragma once

#include "engine/filters/Filters.h"

/// Enhance by networks that enlarge in steps.
Made makeNetworkEnhanceStage(const FilterInput &input);
